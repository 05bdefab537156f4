// A byte string of the common runtime: the text type of the settings and foundation interfaces.
//
// Text is multi-byte: UTF-8 on POSIX, the ANSI code page on Windows. Byte-oriented members work
// on bytes; the members that say "character" never split a multi-byte character.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>
#include <string_view>

#include "vxutil/export.h"

class VXUTIL_API CGNString {
  public:
    CGNString() = default;
    CGNString(const char* text);  // NOLINT: implicit on purpose, as the framework string is
    CGNString(const char* text, std::size_t length);
    CGNString(std::string_view text);  // NOLINT
    CGNString(std::string text);       // NOLINT

    CGNString& operator=(const char* text);

    const char* c_str() const { return m_str.c_str(); }
    const std::string& str() const { return m_str; }
    std::string_view view() const { return m_str; }
    std::size_t GetLength() const { return m_str.size(); }
    bool IsEmpty() const { return m_str.empty(); }
    void Empty() { m_str.clear(); }
    char operator[](std::size_t index) const { return m_str[index]; }

    CGNString& operator+=(const CGNString& other);
    CGNString& operator+=(const char* text);
    CGNString& operator+=(char c);
    friend VXUTIL_API CGNString operator+(const CGNString& a, const CGNString& b);

    // Equality is case-sensitive and byte-wise.
    friend bool operator==(const CGNString& a, const CGNString& b) { return a.m_str == b.m_str; }
    friend VXUTIL_API bool operator==(const CGNString& a, const char* b);
    int Compare(const char* text) const;
    int CompareNoCase(const char* text) const;  // ASCII letters folded

    CGNString Left(std::size_t count) const;
    CGNString Mid(std::size_t start, std::size_t count = std::string::npos) const;
    CGNString Right(std::size_t count) const;

    // Byte index of the first occurrence at or after `start`, or -1. The single-character search
    // never matches a trail byte of a multi-byte character.
    int Find(char c, std::size_t start = 0) const;
    int Find(const char* text, std::size_t start = 0) const;
    int ReverseFind(char c) const;

    // Blanks are space, tab, carriage return and line feed.
    CGNString& TrimLeft();
    CGNString& TrimRight();
    CGNString& Trim();
    CGNString& MakeUpper();  // ASCII letters only
    CGNString& MakeLower();

    // printf-style formatting; replaces the content.
    void Format(const char* format, ...)
#if defined(__GNUC__)
        __attribute__((format(printf, 2, 3)))
#endif
        ;
    void FormatV(const char* format, va_list args);

    // Number of characters (not bytes); a byte that starts no valid character counts as one.
    std::size_t CharCount() const;

    // Converts text received from the server (line feed line ends) to the client's text form:
    // on Windows a line feed not already preceded by a carriage return becomes CR LF; on POSIX
    // the line feed already is the client's line end and the text is left as it is.
    CGNString& ClientFormat();

    // Writes control characters and the characters that delimit a quoted literal as escapes, so
    // the text can stand inside double quotes: backslash -> \\, double quote -> \", line feed ->
    // \n, carriage return -> \r, tab -> \t; other bytes below 0x20 -> \xHH (two hex digits).
    CGNString& ExpandSpecials();

  private:
    std::string m_str;
};
