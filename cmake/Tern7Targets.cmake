# What every target of this project is built with.
add_library(tern7_build_flags INTERFACE)
target_compile_options(tern7_build_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(TERN7_SANITIZE)
  target_compile_options(tern7_build_flags INTERFACE
    -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(tern7_build_flags INTERFACE -fsanitize=address,undefined)
endif()

# The flags are this project's own business: nothing of them reaches a consumer.
function(tern7_target name)
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:tern7_build_flags>)
endfunction()
