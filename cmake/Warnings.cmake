# The warnings of the project's own code; an interface target, so that no foreign source is built with them.
add_library(qzbase_warnings INTERFACE)
target_compile_options(qzbase_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  # g++ 12 warns wrongly of copies of short strings once it has optimised them; the sanitizers watch these better.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds>
  $<$<BOOL:${QZBASE_WARNINGS_AS_ERRORS}>:-Werror>)
