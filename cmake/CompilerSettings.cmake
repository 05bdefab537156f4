# Warnings, sanitizers and platform link options shared by every target of the project.

function(vxutil_apply_compiler_settings target)
  if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow
                                             -Wnon-virtual-dtor -Wformat=2)
  endif()
  if(VXUTIL_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${VXUTIL_SANITIZE}
                                             -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(${target} PUBLIC -fsanitize=${VXUTIL_SANITIZE})
  endif()
endfunction()

# Links the C++ runtime statically into Windows binaries, so that they run under Wine and on
# machines without the MinGW runtime DLLs.
function(vxutil_apply_link_settings target)
  vxutil_apply_compiler_settings(${target})
  if(MINGW)
    target_link_options(${target} PRIVATE -static -static-libgcc -static-libstdc++)
  endif()
endfunction()
