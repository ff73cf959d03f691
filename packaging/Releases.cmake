# SPDX-License-Identifier: MIT
# moravel_releases(RESULT NOTES): the release notes (Markdown: "## VERSION (DATE)", paragraphs, lists) as the
# <release> elements of AppStream metadata.
function(moravel_releases result notes)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${notes}")
  file(READ "${notes}" text)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  string(REPLACE ">" "&gt;" text "${text}")
  string(REGEX REPLACE "^# [^\n]*" "" text "${text}")
  # Wrapped lines belong to what stands above them.
  string(REGEX REPLACE "\n  +" " " text "${text}")
  string(REGEX REPLACE "([^\n])\n([^-#\n])" "\\1 \\2" text "${text}")
  string(REGEX REPLACE "\n([^-#\n][^\n]*)" "\n<p>\\1</p>" text "${text}")
  string(REGEX REPLACE "\n- ([^\n]*)" "\n<li>\\1</li>" text "${text}")
  string(REGEX REPLACE "((\n<li>[^\n]*)+)" "\n<ul>\\1\n</ul>" text "${text}")
  string(REGEX REPLACE "\n## ([0-9.]+) \\(([0-9-]+)\\)"
    "\n</description></release>\n<release version=\"\\1\" date=\"\\2\"><description>" text "${text}")
  string(REGEX REPLACE "^[\n]*</description></release>" "" text "${text}")
  if(NOT text MATCHES "<release")
    message(FATAL_ERROR "${notes}: no heading of the form \"## VERSION (DATE)\"")
  endif()
  string(APPEND text "</description></release>")
  string(REGEX REPLACE "\n+" "\n" text "${text}")
  set(${result} "${text}" PARENT_SCOPE)
endfunction()
