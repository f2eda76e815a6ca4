# Errors end in `runtime::Attempt`, which leaves the thread's last error alone: below the automation room no other file
# catches errors to go on without them. Checked at every configure. The files that may hold a `catch`:
set(QZBASE_CATCHES
    runtime/Attempt.h  # the place itself
    runtime/Memory.h  # memory that did not suffice goes on as error 7
    data/VectorSort.cpp  # the error goes on once the texts before it have been sorted
    os/posix/RegistryStore.cpp)  # a fault of its own that never leaves the file

function(qzbase_check_catches)
  set(faults "")
  foreach(room IN LISTS QZBASE_ROOMS)
    file(GLOB_RECURSE files RELATIVE ${PROJECT_SOURCE_DIR}/qzbase
         ${PROJECT_SOURCE_DIR}/qzbase/${room}/*.h ${PROJECT_SOURCE_DIR}/qzbase/${room}/*.cpp)
    list(REMOVE_ITEM files ${QZBASE_CATCHES})
    foreach(file IN LISTS files)
      file(STRINGS ${PROJECT_SOURCE_DIR}/qzbase/${file} lines REGEX "^([^/]|/[^/])*catch *\\(")
      if(lines AND NOT room STREQUAL "automation")
        list(APPEND faults ${file})
      endif()
    endforeach()
  endforeach()
  if(faults)
    list(JOIN faults "\n  " faults)
    message(FATAL_ERROR "Errors end in runtime::Attempt (qzbase/runtime/Attempt.h) and not in a catch of:\n  ${faults}")
  endif()
endfunction()
