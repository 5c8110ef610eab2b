# Run on the tree that becomes the package: adds what Debian alone asks for.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(usr ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)
set(doc ${usr}/share/doc/zarvo)
file(COPY ${CPACK_ZARVO_PACKAGING}/copyright ${CPACK_ZARVO_PACKAGING}/changelog.Debian
  DESTINATION ${doc})
file(GLOB pages ${usr}/share/man/man1/*.1)
execute_process(COMMAND gzip -9n ${doc}/changelog.Debian ${pages} COMMAND_ERROR_IS_FATAL ANY)
