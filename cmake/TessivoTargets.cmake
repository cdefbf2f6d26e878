# A folder is a target. Headers are included from the root of their tree: "Event/EventItem.h", "sqlite/Database.h".

# tessivo_module(<target> [ROOT <include root>] [DEPENDS <targets>...])
# Makes a static library of all *.cpp of the calling folder, or a header-only one where there are none.
function(tessivo_module target)
  cmake_parse_arguments(ARG "" "ROOT" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  if(NOT ARG_ROOT)
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH ARG_ROOT)
  endif()
  if(sources)
    add_library(${target} STATIC ${sources})
    target_include_directories(${target} PUBLIC "${ARG_ROOT}")
    target_link_libraries(${target} PUBLIC ${ARG_DEPENDS})
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "${ARG_ROOT}")
    target_link_libraries(${target} INTERFACE ${ARG_DEPENDS})
  endif()
endfunction()

# tessivo_test(<target> [DEPENDS <targets>...] [PROPERTIES <CTest properties>...])
# One GoogleTest program of all *.cpp of the calling folder; CTest knows each of its tests by name.
function(tessivo_test target)
  cmake_parse_arguments(ARG "" "" "DEPENDS;PROPERTIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE ${ARG_DEPENDS} GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 300 ${ARG_PROPERTIES})
endfunction()

# tessivo_find_qttest()
# Qt's touches and key presses, as Qt6::Test. Qt puts the folders of the calling target into every command line of it,
# for QFINDTESTDATA, which nothing here uses; an absolute path there keeps a compiler cache from serving a second
# checkout.
macro(tessivo_find_qttest)
  find_package(Qt6 REQUIRED COMPONENTS Test)
  set_target_properties(Qt6::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
endmacro()
