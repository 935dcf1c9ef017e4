# Helpers that declare one static library per subsystem folder and one test program per test folder.

# plovix_module(<name> [DEPS libs...] [EXCLUDE files...])
# Builds every .cpp of the current folder into the static library plovix_<name>.
function(plovix_module name)
  cmake_parse_arguments(M "" "" "DEPS;EXCLUDE" ${ARGN})
  file(GLOB srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  foreach(ex IN LISTS M_EXCLUDE)
    list(REMOVE_ITEM srcs ${CMAKE_CURRENT_SOURCE_DIR}/${ex})
  endforeach()
  if(srcs)
    add_library(plovix_${name} STATIC ${srcs})
    target_include_directories(plovix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(plovix_${name} PUBLIC ${M_DEPS})
  else()
    add_library(plovix_${name} INTERFACE)
    target_include_directories(plovix_${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(plovix_${name} INTERFACE ${M_DEPS})
  endif()
endfunction()

# plovix_test(<name> [DEPS libs...])
# Builds every .cpp of the current test folder into the GoogleTest program test_<name> and registers its tests.
function(plovix_test name)
  cmake_parse_arguments(T "" "" "DEPS" ${ARGN})
  file(GLOB srcs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_executable(test_${name} ${srcs})
  target_link_libraries(test_${name} PRIVATE ${T_DEPS} plovix_test_support GTest::gtest GTest::gtest_main)
  target_compile_definitions(test_${name} PRIVATE
    PLOVIX_TEST_DATA_DIR="${CMAKE_CURRENT_SOURCE_DIR}/data"
    PLOVIX_BINARY_DIR="${PROJECT_BINARY_DIR}"
    PLOVIX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
  gtest_discover_tests(test_${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS ${name})
endfunction()
