# What the user waits for in the text box, offscreen: bench/vista_texto, bench/pausas.
foreach(banco vista_texto pausas)
  add_executable(${banco} ${banco}.cpp)
  target_link_libraries(${banco} PRIVATE text_box Qt6::Widgets benchmark::benchmark)
  target_include_directories(${banco} PRIVATE ${CMAKE_SOURCE_DIR})
endforeach()

# Texts in UTF-8 next to ASCII.
add_executable(escrituras escrituras.cpp)
target_include_directories(escrituras PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(escrituras PRIVATE text_box)
