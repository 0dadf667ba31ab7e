# Run by CPack on the staged tree: moves what is shared to /usr/share and puts the two
# programs on the path.
set(root ${CPACK_TEMPORARY_INSTALL_DIRECTORY})
file(MAKE_DIRECTORY ${root}/usr/bin)
file(RENAME ${root}/opt/share ${root}/usr/share)
foreach(program Tallix_Reports Tallix_Setup)
  file(CREATE_LINK /opt/Tallix/ReportsTool/${program} ${root}/usr/bin/${program} SYMBOLIC)
endforeach()
