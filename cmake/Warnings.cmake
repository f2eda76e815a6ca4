# The warnings of the project's own code; an interface target, so that no foreign source is built with them.
add_library(qzbase_warnings INTERFACE)
target_compile_options(qzbase_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
  $<$<BOOL:${QZBASE_WARNINGS_AS_ERRORS}>:-Werror>)
