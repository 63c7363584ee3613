# CPack runs this on the tree of each package. It adds the files that Debian's policy requires, and compresses files as
# Debian does.

foreach(component command wizard)
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
  if(NOT EXISTS ${root})
    continue()
  endif()
  set(package plotsmith)
  if(component STREQUAL "wizard")
    set(package plotsmith-wizard)
  endif()
  set(doc ${root}/share/doc/${package})
  file(COPY ${PLOTSMITH_CHANGELOG} ${PLOTSMITH_COPYRIGHT} DESTINATION ${doc}
       FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  file(GLOB pages ${root}/share/man/man1/*.1)
  execute_process(COMMAND gzip -9nf ${pages} ${doc}/changelog COMMAND_ERROR_IS_FATAL ANY)
endforeach()
