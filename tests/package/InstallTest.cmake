# Installs the project into a folder of its own, builds the programs of the documents against the installed tree alone,
# runs them and looks at what they print. Settings come from the add_test beside this file.
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

# take(PROGRAM DOCUMENT HEADING): the first program under a heading.
function(take program document heading)
  file(READ ${CMAKE_CURRENT_LIST_DIR}/../../${document} text)
  string(FIND "${text}" "## ${heading}\n" start)
  string(SUBSTRING "${text}" ${start} -1 text)
  string(REGEX MATCH "```cpp\n([^`]*)```" found "${text}")
  file(WRITE ${FOLDER}/${program}.cpp "${CMAKE_MATCH_1}")
endfunction()
take(first README.md "A first program")
take(portable docs/automation.md "A portable C++ program")

run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${CMAKE_CURRENT_LIST_DIR}/program -B ${FOLDER}/program
    -DSOURCES=${FOLDER} ${place} -DCMAKE_BUILD_TYPE=${BUILD_TYPE}
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${FLAGS} ${TOOLCHAIN})
run(${CMAKE_COMMAND} --build ${FOLDER}/program)
foreach(program IN ITEMS "first 2 values, the same" "portable 7.5")
  string(REGEX MATCH "^([a-z]+) (.*)" found "${program}")
  set(expected ${CMAKE_MATCH_2})
  run(${RUNNER} ${FOLDER}/program/${CMAKE_MATCH_1}${SUFFIX})
  string(STRIP "${said}" said)
  if(NOT said STREQUAL expected)
    message(FATAL_ERROR "${program}, but it printed: ${said}")
  endif()
endforeach()
