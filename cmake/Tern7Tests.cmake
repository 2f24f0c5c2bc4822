# One line per test, benchmark or fuzzer.
#
#   tern7_test(NAME sources... [LIBS libraries...])     GoogleTest, one CTest entry
#   tern7_qt_test(NAME sources... [LIBS libraries...])  the same with a Qt application object
#   tern7_test_folders(core)                            a test for each folder of tests/core
#   tern7_bench(NAME sources... [LIBS libraries...])    Google Benchmark
#   tern7_fuzzer(NAME source)                           fuzzer, or replay of its corpus as a test
#
# A test with a main.cpp of its own is linked without ours. Tests find their files below
# TERN7_TESTS_DIR and the tool at TERN7_TOOL (both also environment variables).

function(tern7_test name)
  cmake_parse_arguments(arg "" "" "LIBS;ENVIRONMENT" ${ARGN})
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  tern7_target(${name})
  # Fixtures and helpers of several files share names on purpose.
  set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE TERN7_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests")
  set(main GTest::gtest_main)
  if(arg_UNPARSED_ARGUMENTS MATCHES "main\\.cpp")
    set(main GTest::gtest)
  endif()
  target_link_libraries(${name} PRIVATE Tern7::Core ${arg_LIBS} ${main} GTest::gmock)
  string(REGEX REPLACE "^test_" "" entry ${name})
  add_test(NAME ${entry} COMMAND ${name})
  set(environment LC_ALL=C.UTF-8 TERN7_TESTS_DIR=${PROJECT_SOURCE_DIR}/tests
    "ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1"
    "UBSAN_OPTIONS=print_stacktrace=1" ${arg_ENVIRONMENT})
  if(TARGET tern)
    add_dependencies(${name} tern)
    target_compile_definitions(${name} PRIVATE TERN7_TOOL="$<TARGET_FILE:tern>")
    list(APPEND environment TERN7_TOOL=$<TARGET_FILE:tern>)
  endif()
  set_tests_properties(${entry} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 600)
endfunction()

# Widgets are tested without a display. The folder stands in for the session's run time folder,
# whose lack Qt complains about.
function(tern7_qt_test name)
  cmake_parse_arguments(arg "" "" "LIBS" ${ARGN})
  set(main "")
  if(NOT arg_UNPARSED_ARGUMENTS MATCHES "main\\.cpp")
    set(main ${PROJECT_SOURCE_DIR}/tests/support/qt_main.cpp)
  endif()
  set(runtime ${PROJECT_BINARY_DIR}/runtime)
  file(MAKE_DIRECTORY ${runtime})
  file(CHMOD ${runtime} PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  tern7_test(${name} ${arg_UNPARSED_ARGUMENTS} ${main} LIBS ${arg_LIBS} Qt6::Test
    ENVIRONMENT QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=${runtime}
      "QT_LOGGING_RULES=*.debug=false")
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

function(tern7_test_folders parent)
  cmake_parse_arguments(arg "QT" "" "LIBS" ${ARGN})
  file(GLOB folders LIST_DIRECTORIES true CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${parent}/*)
  string(REPLACE "/" "_" prefix test_${parent})
  foreach(folder IN LISTS folders)
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    get_filename_component(leaf ${folder} NAME)
    if(IS_DIRECTORY ${folder} AND sources MATCHES "\\.cpp")
      if(arg_QT)
        tern7_qt_test(${prefix}_${leaf} ${sources} LIBS ${arg_LIBS})
      else()
        tern7_test(${prefix}_${leaf} ${sources} LIBS ${arg_LIBS})
      endif()
    endif()
  endforeach()
endfunction()

function(tern7_bench name)
  cmake_parse_arguments(arg "" "" "LIBS" ${ARGN})
  add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
  tern7_target(${name})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/bench)
  target_link_libraries(${name} PRIVATE
    Tern7::Core ${arg_LIBS} benchmark::benchmark_main benchmark::benchmark)
  add_dependencies(benchmarks ${name})
endfunction()

# The corpus of tests/fuzz/NAME.cpp lies in tests/fuzz/corpus/NAME. Tests replay it; the fuzzers,
# an option of their own, search on from it.
function(tern7_fuzzer name source)
  set(corpus ${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${name})
  if(TERN7_BUILD_FUZZERS)
    add_executable(fuzz_${name} ${source})
    target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
  else()
    add_executable(fuzz_${name} ${source} ${PROJECT_SOURCE_DIR}/tests/support/replay_main.cpp)
    add_test(NAME fuzz_${name} COMMAND fuzz_${name} ${corpus})
    set_tests_properties(fuzz_${name} PROPERTIES TIMEOUT 300 LABELS fuzz)
  endif()
  tern7_target(fuzz_${name})
  target_include_directories(fuzz_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(fuzz_${name} PRIVATE Tern7::Core)
endfunction()
