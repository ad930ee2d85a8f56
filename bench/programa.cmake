# What the user waits for, next to its floor: bench/tabla. It shares the recording desktop of the
# tests.
add_executable(tabla tabla.cpp tabla_archivos.cpp tabla_lista.cpp tabla_ventanas.cpp
                     tabla_vista.cpp mesa.cpp suelos.cpp ventanas.cpp)
target_include_directories(tabla PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/tests)
target_link_libraries(tabla PRIVATE main_window recursos)

# The floor under the start of the program, measured by arranque.py.
add_executable(vacio vacio.cpp)
target_link_libraries(vacio PRIVATE Qt6::Widgets)
