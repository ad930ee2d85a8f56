# What the user waits for in the text box, offscreen: bench/vista_texto.
add_executable(vista_texto vista_texto.cpp)
target_link_libraries(vista_texto PRIVATE text_box Qt6::Widgets benchmark::benchmark)
