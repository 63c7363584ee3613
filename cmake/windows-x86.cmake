set(CMAKE_SYSTEM_PROCESSOR x86)
set(WINDOWS_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
# The x87 unit would round otherwise than every other build does.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
