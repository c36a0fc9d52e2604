corvane_test(gdi_test
  SOURCES gdi_blits_test.cpp gdi_fills_test.cpp gdi_handle_test.cpp gdi_lines_test.cpp
    gdi_objects_test.cpp gdi_region_test.cpp gdi_surface_test.cpp gdi_text_test.cpp
  ROOMS gdi)
