# Installs the project into a folder of its own, builds a program against the installed tree alone, runs it and looks at
# what it prints. Settings come from the add_test beside this file.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE said ERROR_VARIABLE said)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${said}")
  endif()
  set(said "${said}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${FOLDER})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${FOLDER}/installed)
set(place -DCMAKE_PREFIX_PATH=${FOLDER}/installed)
if(TOOLCHAIN)  # which looks for packages among those of its system only
  file(GLOB package ${FOLDER}/installed/*/cmake/QZBase)
  set(place -DQZBase_DIR=${package})
endif()
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${CMAKE_CURRENT_LIST_DIR}/program -B ${FOLDER}/program
    ${place} -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${FLAGS} ${TOOLCHAIN})
run(${CMAKE_COMMAND} --build ${FOLDER}/program)
run(${RUNNER} ${FOLDER}/program/program${SUFFIX})
string(STRIP "${said}" said)
if(NOT said STREQUAL "1 0.5")
  message(FATAL_ERROR "The program printed: ${said}")
endif()
