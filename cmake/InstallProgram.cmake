# vxutil_install_program(<target>): installs a program of the project into the prefix's bin
# folder, finding the project's libraries relative to itself (RUNPATH $ORIGIN/../lib), so that an
# install into any prefix runs without LD_LIBRARY_PATH.
file(RELATIVE_PATH VXUTIL_LIBDIR_FROM_BINDIR ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})

function(vxutil_install_program target)
  if(NOT WIN32)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${VXUTIL_LIBDIR_FROM_BINDIR}")
  endif()
  install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endfunction()
