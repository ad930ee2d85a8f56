# What Debian asks of every program that it ships: checked library calls, guarded stacks, nothing
# writable in the tables that the loader fills. The same in every optimised build, so that what is
# tested is what is installed. The sanitizers bring checks of their own.
if(NOT VELDA_SANITIZE)
  add_compile_options(
    -fstack-protector-strong -Wformat -Werror=format-security
    "$<$<CONFIG:Release,RelWithDebInfo>:-D_FORTIFY_SOURCE=2>"
    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
  add_link_options(-Wl,-z,relro -Wl,-z,now)
endif()
