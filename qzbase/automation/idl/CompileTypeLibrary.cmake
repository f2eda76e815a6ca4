# cmake -P CompileTypeLibrary.cmake -- COMMAND...     runs the compiler of type libraries; whatever it says is an error.
# It ends well after warnings that stand for a damaged type library, such as a default that it could not write. Those of
# doubles and dates are written afterwards.
set(command "")
set(seen FALSE)
math(EXPR last "${CMAKE_ARGC} - 1")
foreach(index RANGE ${last})
  if(seen)
    list(APPEND command "${CMAKE_ARGV${index}}")
  elseif(CMAKE_ARGV${index} STREQUAL "--")
    set(seen TRUE)
  endif()
endforeach()

execute_process(COMMAND ${command} RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
string(REGEX REPLACE "warning: can't write value of type [57] yet\n" "" said "${said}")
if(NOT result EQUAL 0 OR NOT said STREQUAL "")
  list(FIND command -o option)
  math(EXPR option "${option} + 1")
  list(GET command ${option} output)
  file(REMOVE ${output})
  message(FATAL_ERROR "${said}")
endif()
