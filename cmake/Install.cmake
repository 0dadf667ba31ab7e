# The install tree: the Reports Tool with its reports and documents, and beside it the
# folders of the companion services, into which it writes.
set(TALLIX_HOME Tallix/ReportsTool)

install(TARGETS Tallix_Reports Tallix_Setup RUNTIME DESTINATION ${TALLIX_HOME})
install(DIRECTORY data/ DESTINATION ${TALLIX_HOME} PATTERN icons EXCLUDE)
install(DIRECTORY DESTINATION ${TALLIX_HOME}/Reports/Standard)
install(DIRECTORY DESTINATION ${TALLIX_HOME}/Reports/Scheduled)
install(DIRECTORY DESTINATION "${TALLIX_HOME}/Company Docs")
foreach(service Collector Processor Importer)
  install(DIRECTORY DESTINATION Tallix/${service})
endforeach()

install(FILES packaging/Tallix_Reports.1 packaging/Tallix_Setup.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES packaging/tallix-reports.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)

include(packaging/Package.cmake)
