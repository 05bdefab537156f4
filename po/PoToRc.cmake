# Turns a gettext catalogue (.po) of the library into the resource script of its Windows
# resource DLL: the string table, keyed by the number each message's context holds, and a
# version resource from the catalogue's "Project-Id-Version".
#   cmake -DPO=de.po -DRC=de.rc -DLANGUAGE=de -P PoToRc.cmake
# Fuzzy and untranslated messages are left out, as msgfmt leaves them out of a catalogue.

file(READ "${PO}" text)
# CMake lists split at ";" and treat brackets specially: keep all three out of the way.
string(REPLACE ";" "@SEMICOLON@" text "${text}")
string(REPLACE "[" "@LBRACKET@" text "${text}")
string(REPLACE "]" "@RBRACKET@" text "${text}")
string(REPLACE "\n" ";" lines "${text}")

set(entries "")
set(header "")
set(field "")
set(ctxt "")
set(str "")
set(fuzzy OFF)
set(next_fuzzy OFF)

# Ends the current message: a translated string of the table becomes a line of the string
# table; the message without context and original is the catalogue's header.
macro(finish_message)
  if(field STREQUAL "msgstr" AND NOT fuzzy AND NOT str STREQUAL "")
    if(ctxt MATCHES "^[0-9]+$")
      # A quote is escaped by doubling it in a resource script; the other escapes are the same.
      string(REPLACE "\\\\" "@BACKSLASH@" rc_text "${str}")
      string(REPLACE "\\\"" "\"\"" rc_text "${rc_text}")
      string(REPLACE "@BACKSLASH@" "\\\\" rc_text "${rc_text}")
      string(APPEND entries "  ${ctxt}, \"${rc_text}\"\n")
    elseif(ctxt STREQUAL "" AND header STREQUAL "")
      set(header "${str}")
    endif()
  endif()
  set(field "")
  set(ctxt "")
  set(str "")
endmacro()

foreach(line IN LISTS lines)
  if(line MATCHES "^#,.*fuzzy")
    set(next_fuzzy ON)
  elseif(line MATCHES "^(msgctxt|msgid|msgstr) \"(.*)\"$")
    set(keyword "${CMAKE_MATCH_1}")
    set(value "${CMAKE_MATCH_2}")
    # A message starts with its context, or with its original when it has no context.
    if(keyword STREQUAL "msgctxt" OR (keyword STREQUAL "msgid" AND NOT field STREQUAL "msgctxt"))
      finish_message()
      set(fuzzy ${next_fuzzy})
      set(next_fuzzy OFF)
    endif()
    set(field "${keyword}")
    if(field STREQUAL "msgctxt")
      set(ctxt "${value}")
    elseif(field STREQUAL "msgstr")
      set(str "${value}")
    endif()
  elseif(line MATCHES "^\"(.*)\"$")
    if(field STREQUAL "msgctxt")
      string(APPEND ctxt "${CMAKE_MATCH_1}")
    elseif(field STREQUAL "msgstr")
      string(APPEND str "${CMAKE_MATCH_1}")
    endif()
  endif()
endforeach()
finish_message()

set(major 0)
set(minor 0)
if(header MATCHES "Project-Id-Version:[^0-9\\\\]*([0-9]+)\\.([0-9]+)")
  set(major ${CMAKE_MATCH_1})
  set(minor ${CMAKE_MATCH_2})
endif()

set(script "// Generated from ${PO} by PoToRc.cmake: edit the catalogue, not this file.
#pragma code_page(65001)
LANGUAGE 0, 0

STRINGTABLE
BEGIN
${entries}END

1 VERSIONINFO
FILEVERSION ${major},${minor},0,0
PRODUCTVERSION ${major},${minor},0,0
BEGIN
  BLOCK \"StringFileInfo\"
  BEGIN
    BLOCK \"000004b0\"
    BEGIN
      VALUE \"FileDescription\", \"vxutil resources (${LANGUAGE})\"
      VALUE \"FileVersion\", \"${major}.${minor}\"
    END
  END
  BLOCK \"VarFileInfo\"
  BEGIN
    VALUE \"Translation\", 0x0, 1200
  END
END
")
string(REPLACE "@SEMICOLON@" ";" script "${script}")
string(REPLACE "@LBRACKET@" "[" script "${script}")
string(REPLACE "@RBRACKET@" "]" script "${script}")
file(WRITE "${RC}" "${script}")
