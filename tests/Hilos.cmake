# The threaded tests of the core with the sources that they need.

find_package(Threads REQUIRED)
find_package(GTest REQUIRED)
find_package(rapidcheck REQUIRED)
include(GoogleTest)

set(src ${PROJECT_SOURCE_DIR}/src)
file(GLOB fuentes CONFIGURE_DEPENDS ${src}/basico/*.cpp ${src}/indices/vecinos/*.cpp ${src}/indices/apa/*.cpp
    ${src}/plot/calculo/*.cpp ${src}/lienzo/*.cpp)
list(FILTER fuentes EXCLUDE REGEX "AreaBasimetrica|PorHectarea|ConsultaDeCopas") # they ask the data engine
file(GLOB_RECURSE pruebas CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/*EnVariosHilosTest.cpp)
list(FILTER pruebas EXCLUDE REGEX "tests/indices/[^/]*$") # in whole windows

add_executable(prueba_hilos ${fuentes} ${pruebas} tests/basico/RepartoTest.cpp)
target_include_directories(prueba_hilos PRIVATE ${src} ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(prueba_hilos PRIVATE varo_reglas rapidcheck_gtest GTest::gtest_main Threads::Threads)
gtest_discover_tests(prueba_hilos TEST_PREFIX hilos/ NO_PRETTY_VALUES DISCOVERY_TIMEOUT 120 PROPERTIES TIMEOUT 300)
