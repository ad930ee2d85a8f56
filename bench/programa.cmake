# Listing the favourite folders' files: bench/favoritas.
add_executable(favoritas favoritas.cpp)
target_link_libraries(favoritas PRIVATE main_window benchmark::benchmark)
