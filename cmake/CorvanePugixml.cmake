# The XML library as pugixml::pugixml: the system's, or (Windows) compiled in from the sources that
# CORVANE_PUGIXML_SOURCE names.
set(CORVANE_PUGIXML_SOURCE "" CACHE PATH "Folder of pugixml's sources, to compile them in")

if(NOT CORVANE_PUGIXML_SOURCE)
  find_package(pugixml REQUIRED)
elseif(NOT TARGET pugixml::pugixml)
  add_library(pugixml_compiled_in STATIC ${CORVANE_PUGIXML_SOURCE}/src/pugixml.cpp)
  target_include_directories(pugixml_compiled_in SYSTEM PUBLIC ${CORVANE_PUGIXML_SOURCE}/src)
  add_library(pugixml::pugixml ALIAS pugixml_compiled_in)
endif()
