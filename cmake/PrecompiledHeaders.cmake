# The windowing framework's headers, compiled once for the folders that include them. Each source still includes
# what it uses.
if(NOT WIN32)
  return()
endif()
file(WRITE ${CMAKE_BINARY_DIR}/framework_headers.cpp "")
add_library(framework_headers OBJECT ${CMAKE_BINARY_DIR}/framework_headers.cpp)
target_link_libraries(framework_headers PRIVATE afx warnings)
target_precompile_headers(framework_headers PRIVATE <afxwin.h> <afxcmn.h>)
foreach(target propgrid dyndlg imagedlg itemdlg host GridGallery)
  target_precompile_headers(${target} REUSE_FROM framework_headers)
endforeach()
