# Makes a program a client of the automation server: it finds the server's header, links the system's COM libraries and
# runs beside the server, a manifest standing for the registration.
function(qzbase_server_client target)
  get_filename_component(header_folder ${QZBASE_HEADER_FILE} DIRECTORY)
  add_dependencies(${target} QZBase qzbase_typelib)
  target_include_directories(${target} SYSTEM PRIVATE ${header_folder})
  target_link_libraries(${target} PRIVATE qzbase_warnings ole32 oleaut32 uuid)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:QZBase> $<TARGET_FILE_DIR:${target}>
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${QZBASE_MANIFEST_FILE}
            $<TARGET_FILE_DIR:${target}>/${target}.exe.manifest
    VERBATIM)
endfunction()
