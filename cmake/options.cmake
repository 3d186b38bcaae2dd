# What every target of this project is compiled with: brunvik_options carries it, and is never installed.
add_library(brunvik_options INTERFACE)
target_compile_features(brunvik_options INTERFACE cxx_std_20)
target_compile_options(brunvik_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(BRUNVIK_WARNINGS_AS_ERRORS)
  target_compile_options(brunvik_options INTERFACE -Werror)
endif()
# g++ 12 sees an overlap where a literal is assigned to a string, and there is none.
target_compile_options(brunvik_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(brunvik_options INTERFACE ${PROJECT_SOURCE_DIR})

if(BRUNVIK_SANITIZE)
  target_compile_options(brunvik_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(brunvik_options INTERFACE -fsanitize=address,undefined)
endif()

# Where the headers are installed: below a folder of their own, since `schema` and `drivers` are anybody's names.
set(BRUNVIK_INCLUDE_FOLDER ${CMAKE_INSTALL_INCLUDEDIR}/brunvik-1)

# What a verb does beside its statements last ran at the verb before, so that fetching its code takes longer than what the
# loops in it gain by -O3: the code is kept small, and a function begins where a line of the cache does.
set(BRUNVIK_SMALL_CODE -O2 -falign-functions=64 -fno-align-jumps -fno-align-loops)

# A library of the house: its options, its place for those who include it, and its name for those who link it.
function(brunvik_library target alias)
  add_library(brunvik::${alias} ALIAS ${target})
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${alias} POSITION_INDEPENDENT_CODE ON)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_options(${target} PRIVATE
    "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release,RelWithDebInfo>>:${BRUNVIK_SMALL_CODE}>")
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:brunvik_options>)
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
                                              $<INSTALL_INTERFACE:${BRUNVIK_INCLUDE_FOLDER}>)
endfunction()
