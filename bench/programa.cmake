# Listing the favourite folders' files: bench/favoritas.
add_executable(favoritas favoritas.cpp)
target_link_libraries(favoritas PRIVATE main_window benchmark::benchmark)

# The next file, a long list: bench/programa. It shares the recording desktop of the tests.
add_executable(programa programa.cpp)
target_include_directories(programa PRIVATE ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(programa PRIVATE main_window recursos benchmark::benchmark)

# The floor under the start of the program, measured by arranque.py.
add_executable(vacio vacio.cpp)
target_link_libraries(vacio PRIVATE Qt6::Widgets)
