# Refreshing the translations from an unchanged string table must change nothing: otherwise the
# committed files are stale, or edited into a form that the next refresh undoes.
cmake_minimum_required(VERSION 3.21)

file(GLOB sources RELATIVE ${TEXTS} ${TEXTS}/*.ts)
list(LENGTH sources count)
if(NOT count EQUAL 20)
  message(SEND_ERROR "${count} translations instead of 20")
endif()
file(REMOVE_RECURSE ${WORK})
foreach(ts IN LISTS sources)
  file(COPY ${TEXTS}/${ts} ${TEXTS}/strtab.def DESTINATION ${WORK})
  file(STRINGS ${WORK}/${ts} head REGEX "<TS .*language=" LIMIT_COUNT 1)
  string(REGEX REPLACE ".* language=\"([^\"]*)\".*" "\\1" locale "${head}")
  execute_process(WORKING_DIRECTORY ${WORK} COMMAND_ERROR_IS_FATAL ANY
    COMMAND ${LUPDATE} -silent -no-obsolete -locations none -source-language en_US
            -target-language ${locale} strtab.def -ts ${ts})
  file(READ ${TEXTS}/${ts} before)
  file(READ ${WORK}/${ts} after)
  if(NOT before STREQUAL after)
    message(SEND_ERROR "${ts} differs after a refresh")
  endif()
  if(before MATCHES "type=\"unfinished\"")
    message(SEND_ERROR "${ts} has unfinished translations")
  endif()
endforeach()
