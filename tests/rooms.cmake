# Compares the project's own #include lines below ROOT with the arrows that are allowed.
cmake_minimum_required(VERSION 3.21)

# From room to room ...
set(ALLOWED
  "lib>ustring"
  "launcher>ustring" "launcher>lib" "launcher>libcommon" "launcher>qtsingleapplication"
  "launcher>launcher/texts"
  "launcher/linux>ustring" "launcher/linux>lib")
# ... and from file pair to file pair where a room's inside has a direction.
list(APPEND ALLOWED
  "lib/config>lib/open-file" "lib/log>lib/open-file" "lib/log>lib/config"
  "lib/file-op>lib/log" "lib/file-op>lib/tmp_name_gen"
  "lib/file-op>lib/directory" "lib/file-op>lib/remove-tree" "lib/remove-tree>lib/directory"
  "launcher/main>launcher/launcher" "launcher/main>launcher/startup"
  "launcher/startup>launcher/cloud-service"
  "launcher/launcher>launcher/linux/linux-service" "launcher/launcher>launcher/adapter"
  "launcher/linux/linux-service>launcher/cloud-service"
  "launcher/linux/linux-service>launcher/linux/process"
  "launcher/cloud-service>launcher/extractor" "launcher/cloud-service>launcher/version-file"
  "launcher/extractor>launcher/adapter" "launcher/extractor>launcher/early-sync")
# Rooms that know nothing of the toolkit.
set(PLAIN ustring lib)

set(files)
foreach(room IN ITEMS ustring lib libcommon qtsingleapplication launcher)
  file(GLOB_RECURSE found RELATIVE ${ROOT} ${ROOT}/${room}/*.h ${ROOT}/${room}/*.cpp ${ROOT}/${room}/*.def)
  list(APPEND files ${found})
endforeach()
list(LENGTH files count)
if(count LESS 20)
  message(SEND_ERROR "only ${count} source files found")
endif()

foreach(file IN LISTS files)
  string(REGEX REPLACE "\\.[a-z]+$" "" pair ${file})
  cmake_path(GET file PARENT_PATH room)
  file(STRINGS ${ROOT}/${file} lines REGEX "^[ \t]*#[ \t]*include")
  foreach(line IN LISTS lines)
    if(line MATCHES "<Q" AND room IN_LIST PLAIN)
      message(SEND_ERROR "${file}: ${line}: this room does not use the toolkit")
    endif()
    if(NOT line MATCHES "\"(.*)\"")
      continue()
    endif()
    set(included ${CMAKE_MATCH_1})
    string(REGEX REPLACE "\\.[a-z]+$" "" target ${included})
    cmake_path(GET included PARENT_PATH target_room)
    if(NOT EXISTS ${ROOT}/${included})
      message(SEND_ERROR "${file}: \"${included}\" does not start at the project root")
    elseif(NOT pair STREQUAL target AND NOT "${pair}>${target}" IN_LIST ALLOWED
           AND NOT "${room}>${target_room}" IN_LIST ALLOWED)
      message(SEND_ERROR "${file}: \"${included}\" is an arrow that does not exist")
    endif()
  endforeach()
endforeach()
