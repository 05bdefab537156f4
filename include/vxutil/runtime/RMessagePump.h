// A pump that keeps chosen kinds of window messages flowing during a long operation.
//
// A started pump is driven by a timer of the module-wide RMessageStation: on each tick it takes
// from the thread's queue only messages whose identifiers it owns, and dispatches them.
#pragma once

#include <vector>

#include "vxutil/export.h"

class RMessageStation;

class VXUTIL_API RMessagePump {
public:
    // Adds `message` unless it is 0; starts the pump when `start` is non-zero. A `limit` of -1
    // stands for the default of 64 messages per tick.
    explicit RMessagePump(unsigned message = 0, int limit = -1, int start = 0);
    // Adds every identifier of `messages` in order.
    explicit RMessagePump(const std::vector<unsigned>& messages, int limit = -1, int start = 0);
    RMessagePump(const RMessagePump&) = delete;
    RMessagePump& operator=(const RMessagePump&) = delete;
    // Stops the pump and forgets its messages.
    virtual ~RMessagePump();

    // Adds the identifier unless it is present already.
    void AddMessage(unsigned message);
    void RemoveMessage(unsigned message);
    int IsMessage(unsigned message) const;
    // Position of the identifier, or -1.
    int GetMessageIndex(unsigned message) const;
    // The station's timer id while started, else 0.
    unsigned GetID() const { return m_nTimerID; }

    // Registers with the module-wide station. 0 when already started, when the pump has no
    // messages or when no timer could be had; 1 when started.
    int Start();
    void Stop();

    // Dispatches waiting messages of the pump's kinds, first identifier first. A tick goes on
    // pass after pass, one message a pass, until a whole pass finds none of its messages
    // waiting: the per-tick limit is raised after every pass and so never ends a tick. A limit
    // of 0 or below (other than -1) dispatches nothing. Kept for compatibility: client tools
    // tuned their limits against this behaviour.
    void Pump();

private:
    RMessageStation* PumpingStation() const;

    unsigned m_nTimerID = 0;
    int m_nLimit;
    std::vector<unsigned> m_arMessages;
    RMessageStation* m_pStation = nullptr;  // the station that started the pump
};
