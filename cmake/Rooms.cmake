# A room is one folder under src/ and one CMake target. Its headers are included as "<room>/<Header>.h".
#
#   kinalyx_room(video SHOWS platform/paint USES platform/files)    logic
#   kinalyx_room(platform/media LIBS PkgConfig::FFMPEG yuv)         may include the foreign libraries named
#   kinalyx_forms(video SHOWS video USES platform/widgets)          src/video/forms: windows and pages, Qt
#
# A room names every room that its files include: after SHOWS those that its headers include, after USES
# the others. Its include path holds these, and what they in turn show, for their headers need it; nothing
# else. It can name only rooms declared before it, so the order of the declarations is the order of the
# floors, and logic can name no windows. What a path alone cannot refuse (an include of a room that is merely
# shown by another, a name that nobody needs any more, a foreign header), tests/floors refuses.

# A foreign library, as it stands after LIBS, and the folders and headers by which it is included. Debian
# keeps many of them where every compiler looks: a room that does not name the library finds headers before
# them that stop the compilation.
function(kinalyx_foreign library)
  string(REPLACE ";" " " declared "foreign;${library};${ARGN}")
  set_property(GLOBAL APPEND_STRING PROPERTY kinalyx_declared "${declared}\n")
  string(REPLACE "::" "_" name "${library}")
  set(root "${CMAKE_BINARY_DIR}/forbidden/${name}")
  foreach(place ${CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES})
    set(patterns ${ARGN})
    list(TRANSFORM patterns PREPEND "${place}/")
    list(TRANSFORM patterns APPEND "*.h" REGEX "/$")
    file(GLOB_RECURSE headers RELATIVE "${place}" ${patterns})
    foreach(header ${headers})
      if(NOT EXISTS "${root}/${header}")
        file(WRITE "${root}/${header}" "#error \"This room does not name ${library} in src/CMakeLists.txt.\"\n")
      endif()
    endforeach()
  endforeach()
  set_property(GLOBAL APPEND PROPERTY kinalyx_foreign "${library}")
endfunction()

function(kinalyx_forbid target)
  get_property(libraries GLOBAL PROPERTY kinalyx_foreign)
  foreach(library ${libraries})
    string(REPLACE "::" "_" name "${library}")
    if(NOT library IN_LIST ARGN AND EXISTS "${CMAKE_BINARY_DIR}/forbidden/${name}")
      target_include_directories(${target} BEFORE PRIVATE "${CMAKE_BINARY_DIR}/forbidden/${name}")
    endif()
  endforeach()
endfunction()

function(kinalyx_room_name out room)
  string(REPLACE "/" "_" name "${room}")
  set(${out} "kx_${name}" PARENT_SCOPE)
endfunction()

function(kinalyx_expose target room)
  get_filename_component(parent "${room}" DIRECTORY)
  set(root "${CMAKE_BINARY_DIR}/rooms/${target}")
  file(MAKE_DIRECTORY "${root}/${parent}")
  file(CREATE_LINK "${CMAKE_SOURCE_DIR}/src/${room}" "${root}/${room}" SYMBOLIC)
  target_include_directories(${target} PUBLIC "${root}")
endfunction()

# kinalyx_link_rooms(<target> PUBLIC|PRIVATE <room>...)
function(kinalyx_link_rooms target scope)
  foreach(used ${ARGN})
    kinalyx_room_name(name "${used}")
    if(NOT TARGET ${name})
      message(FATAL_ERROR "${target} names ${used}, which is no room on a floor below it.")
    endif()
    target_link_libraries(${target} ${scope} ${name})
  endforeach()
endfunction()

# Links a room to those that it names and to its libraries, and notes all that for tests/floors.
function(kinalyx_furnish target folder)
  cmake_parse_arguments(ROOM "" "" "SHOWS;USES;LIBS" ${ARGN})
  kinalyx_expose(${target} "${folder}")
  kinalyx_link_rooms(${target} PUBLIC ${ROOM_SHOWS})
  kinalyx_link_rooms(${target} PRIVATE ${ROOM_USES})
  target_link_libraries(${target} PRIVATE fmt::fmt ${ROOM_LIBS})
  kinalyx_forbid(${target} ${ROOM_LIBS})
  string(REPLACE ";" " " declared "room;${folder};SHOWS;${ROOM_SHOWS};USES;${ROOM_USES};LIBS;${ROOM_LIBS}")
  set_property(GLOBAL APPEND_STRING PROPERTY kinalyx_declared "${declared}\n")
endfunction()

# Writes what has been declared to rooms.txt in the build folder.
function(kinalyx_note_rooms)
  get_property(declared GLOBAL PROPERTY kinalyx_declared)
  file(CONFIGURE OUTPUT "${CMAKE_BINARY_DIR}/rooms.txt" CONTENT "${declared}" @ONLY)
endfunction()

# Ninja runs moc again when a file that it read has changed, but not when a header has joined the
# target: the stamp of its last run is removed then.
function(kinalyx_renew_moc target)
  set(list_file "${CMAKE_CURRENT_BINARY_DIR}/${target}_sources.txt")
  set(before "")
  if(EXISTS "${list_file}")
    file(READ "${list_file}" before)
  endif()
  if(NOT before STREQUAL "${ARGN}")
    file(WRITE "${list_file}" "${ARGN}")
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp")
  endif()
endfunction()

function(kinalyx_room room)
  if("${ARGN}" MATCHES "/forms|platform/widgets")
    message(FATAL_ERROR "${room} is logic and names windows.")
  endif()
  kinalyx_room_name(target "${room}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${room}/*.cpp" "${CMAKE_SOURCE_DIR}/src/${room}/*.h")
  list(APPEND sources "${CMAKE_SOURCE_DIR}/src/${room}/README.md")
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  kinalyx_furnish(${target} "${room}" ${ARGN})
endfunction()

function(kinalyx_forms room)
  if(room MATCHES "^platform/")
    set(folder "${room}")
  else()
    set(folder "${room}/forms")
  endif()
  kinalyx_room_name(target "${folder}")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/${folder}/*.cpp" "${CMAKE_SOURCE_DIR}/src/${folder}/*.h")
  list(APPEND sources "${CMAKE_SOURCE_DIR}/src/${folder}/README.md")
  add_library(${target} STATIC ${sources})
  set_target_properties(${target} PROPERTIES AUTOMOC ON LINKER_LANGUAGE CXX)
  kinalyx_renew_moc(${target} ${sources})
  target_link_libraries(${target} PUBLIC Qt6::Widgets Qt6::Svg)
  target_precompile_headers(${target} PRIVATE <QtWidgets>)
  kinalyx_furnish(${target} "${folder}" ${ARGN} LIBS Qt6::Widgets Qt6::Svg)
endfunction()
