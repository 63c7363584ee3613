# The common part of both toolchain files. WINDOWS_TRIPLE names the compilers and the folder in which
# scripts/windows-libraries.sh has installed the libraries.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${WINDOWS_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${WINDOWS_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER ${WINDOWS_TRIPLE}-windres)

set(WINDOWS_LIBRARIES ${CMAKE_CURRENT_LIST_DIR}/../build/windows-libraries/${WINDOWS_TRIPLE})
cmake_path(NORMAL_PATH WINDOWS_LIBRARIES)
set(CMAKE_FIND_ROOT_PATH ${WINDOWS_LIBRARIES} /usr/${WINDOWS_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${WINDOWS_LIBRARIES}/lib/pkgconfig)

# Our files need no other libraries than those of the system.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
