add_executable(nucleo_texto nucleo_texto.cpp)
target_link_libraries(nucleo_texto PRIVATE text_box benchmark::benchmark_main)
target_include_directories(nucleo_texto PRIVATE ${CMAKE_SOURCE_DIR})
