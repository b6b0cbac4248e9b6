# A room is one folder below src/ and one static library. What it may use stands in src/rooms.txt and nowhere else.
#
#   quorvel_room(brand SOURCES StatusPill.cpp ...)    in src/brand/CMakeLists.txt

add_library(quorvel_options INTERFACE)
target_compile_features(quorvel_options INTERFACE cxx_std_20)
# What a newer toolkit means to leave behind is worth a word, and no more: the programs run on both.
target_compile_options(quorvel_options INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wno-error=deprecated-declarations)

# gtkmm's headers dominate the build; every target that draws shares one precompiled copy of them.
add_library(quorvel_gtkmm_headers OBJECT "${CMAKE_CURRENT_LIST_DIR}/gtkmm_headers.cpp")
target_compile_features(quorvel_gtkmm_headers PRIVATE cxx_std_20)

# The libraries that the table names.
set(quorvel_library_sigc++ PkgConfig::SIGCPP)
set(quorvel_library_glib PkgConfig::GLIBMM)
set(quorvel_library_glibmm PkgConfig::GLIBMM)
set(quorvel_library_giomm PkgConfig::GIOMM)
set(quorvel_library_gtkmm PkgConfig::GTKMM)
set(quorvel_library_webkitgtk PkgConfig::WEBKIT)
set(quorvel_library_epoxy PkgConfig::EPOXY)

set(quorvel_room_table "${PROJECT_SOURCE_DIR}/src/rooms.txt")
set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${quorvel_room_table}")

# The target of a room or library of the table: quorvel_brand, quorvel_programs_client, PkgConfig::GTKMM.
function(quorvel_targets result)
  set(targets "")
  foreach(name IN LISTS ARGN)
    if(DEFINED quorvel_library_${name})
      list(APPEND targets ${quorvel_library_${name}})
    else()
      string(REPLACE "/" "_" name "${name}")
      list(APPEND targets quorvel_${name})
    endif()
  endforeach()
  set(${result} "${targets}" PARENT_SCOPE)
endfunction()

# What the table lets a room use.
function(quorvel_uses room public private)
  file(STRINGS "${quorvel_room_table}" rows REGEX "^${room} *\\|")
  list(LENGTH rows count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "${quorvel_room_table} has ${count} rows for the room ${room}; it takes one.")
  endif()
  string(REPLACE "|" ";" columns "${rows}")
  list(GET columns 1 itsPublic)
  list(GET columns 2 itsPrivate)
  separate_arguments(itsPublic)
  separate_arguments(itsPrivate)
  set(${public} "${itsPublic}" PARENT_SCOPE)
  set(${private} "${itsPrivate}" PARENT_SCOPE)
endfunction()

function(quorvel_room name)
  cmake_parse_arguments(room "" "" "SOURCES" ${ARGN})
  quorvel_uses(${name} public private)
  quorvel_targets(target ${name})
  quorvel_targets(public_targets ${public})
  quorvel_targets(private_targets ${private})
  if(room_SOURCES)
    add_library(${target} STATIC ${room_SOURCES})
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${target} PUBLIC ${public_targets} PRIVATE ${private_targets} quorvel_options)
    if("gtkmm" IN_LIST public OR "gtkmm" IN_LIST private)
      quorvel_precompile_gtkmm(${target})
    endif()
  else()
    add_library(${target} INTERFACE)
    target_include_directories(${target} INTERFACE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${target} INTERFACE ${public_targets})
  endif()
endfunction()

# Lets a target that already links gtkmm compile against the shared precompiled headers.
function(quorvel_precompile_gtkmm target)
  target_link_libraries(${target} PRIVATE PkgConfig::GTKMM quorvel_options)
  target_precompile_headers(${target} REUSE_FROM quorvel_gtkmm_headers)
endfunction()
