find_package(PkgConfig REQUIRED)
pkg_check_modules(IMAGE_LIBS REQUIRED IMPORTED_TARGET gdk-pixbuf-2.0)
corvane_test(gdi_test
  SOURCES gdi_blits_test.cpp gdi_fills_test.cpp gdi_handle_test.cpp gdi_images_test.cpp
    gdi_lines_test.cpp gdi_objects_test.cpp gdi_region_test.cpp gdi_surface_test.cpp
    gdi_text_test.cpp
  ROOMS gdi
  LIBRARIES PkgConfig::IMAGE_LIBS)
corvane_test(wide_path_test SOURCES wide_path_test.cpp ROOMS shell)
corvane_test(find_files_test SOURCES find_files_test.cpp ROOMS shell)
