// The switchable trace: numbered entries in a section of the application profile.
//
// Tracing is off unless the section's switch entry holds a number greater than 0; the switch is
// read afresh at every entry. The first entry of a run clears the previous run's entries, writes
// a time stamp and takes the section's "Level" value as the mask of entry kinds to write.
#pragma once

#include <string>

#include "vxutil/export.h"

class VXUTIL_API RTrace {
public:
    RTrace(int clearPending, unsigned long level, const char* section, const char* switchEntry,
           int startNumber);
    RTrace(const RTrace&) = delete;
    RTrace& operator=(const RTrace&) = delete;
    virtual ~RTrace();

    // Removes the current run's numbered entries and its time stamp; the next entry starts a
    // new run.
    virtual void Clear();
    // Writes `text` (or `value`) as the next numbered entry when tracing is on and `level` has
    // a bit in common with the mask. 0 when nothing was written, else the profile write's result.
    virtual int Trace(const char* text, unsigned long level);
    virtual int Trace(int value, unsigned long level);

    int IsTracing() const;
    unsigned long GetLevel() const { return m_nLevel; }
    void SetLevel(unsigned long level) { m_nLevel = level; }
    unsigned long IsTraceLevel(unsigned long level) const { return m_nLevel & level; }
    // Writes the run's time stamp and reloads the level mask from the profile.
    void SetTimestamp();

    // The switch and the level mask as the profile keeps them for the runs to come (what a
    // settings tool changes); non-zero when the profile was written.
    int WriteSwitch(int value);
    int WriteStoredLevel(unsigned long level);
    // The level mask the next run takes: the profile's, else the current one.
    unsigned long GetStoredLevel() const;

    const std::string& GetSection() const { return m_strSection; }
    const std::string& GetTimestampEntry() const { return m_strTimestampEntry; }
    int GetStartNumber() const { return m_nStart; }
    int GetNextNumber() const { return m_nNext; }

    // The module-wide trace every RMethodTrace writes to; null before the module is loaded.
    static RTrace* Module();
    // Replaces the module-wide trace (the caller keeps ownership); returns the previous one.
    static RTrace* SetModule(RTrace* trace);

private:
    bool BeginEntry(unsigned long level);
    std::string NextEntryName();

    int m_bClearPending;
    unsigned long m_nLevel;
    std::string m_strSection;
    std::string m_strSwitchEntry;
    std::string m_strTimestampEntry;
    int m_nStart;
    int m_nNext;
};

// The level mask every method trace of this library is opened with.
inline constexpr unsigned long kTraceAllLevels = 0x11111111UL;
