# What the user waits for in the text box, offscreen: bench/vista_texto, bench/pausas.
foreach(banco vista_texto pausas)
  add_executable(${banco} ${banco}.cpp)
  target_link_libraries(${banco} PRIVATE text_box Qt6::Widgets benchmark::benchmark)
  target_include_directories(${banco} PRIVATE ${CMAKE_SOURCE_DIR})
endforeach()
