set(CMAKE_SYSTEM_PROCESSOR x86)
set(WINDOWS_TRIPLE i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/windows.cmake)
# SSE2 gives the same results as all other builds; the x87 unit rounds differently.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
