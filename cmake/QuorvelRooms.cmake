# A room is one folder and one static library. It sees the headers of its own folder and of the rooms it names,
# and of nothing else: an include that crosses the house the wrong way does not compile.
#
#   quorvel_room(brand SOURCES StatusPill.cpp ... USES quorvel_layout PkgConfig::GTKMM)

add_library(quorvel_options INTERFACE)
target_compile_features(quorvel_options INTERFACE cxx_std_20)
target_compile_options(quorvel_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Werror)

# gtkmm's headers dominate the build; every target that draws shares one precompiled copy of them.
add_library(quorvel_gtkmm_headers OBJECT "${CMAKE_CURRENT_LIST_DIR}/gtkmm_headers.cpp")
target_compile_features(quorvel_gtkmm_headers PRIVATE cxx_std_20)

function(quorvel_room name)
  cmake_parse_arguments(room "" "" "SOURCES;USES" ${ARGN})
  add_library(quorvel_${name} STATIC ${room_SOURCES})
  target_include_directories(quorvel_${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(quorvel_${name} PUBLIC ${room_USES} PRIVATE quorvel_options)
endfunction()

# Lets a target that already links gtkmm compile against the shared precompiled headers.
function(quorvel_precompile_gtkmm target)
  target_link_libraries(${target} PRIVATE PkgConfig::GTKMM quorvel_options)
  target_precompile_headers(${target} REUSE_FROM quorvel_gtkmm_headers)
endfunction()
