# A room is a folder of the source tree, such as engine/. Includes read "engine/flight.h", and a target sees the
# rooms of the targets that it links, and no other: each target has an include folder in the build tree with
# nothing in it but links to its rooms.
set(PARABOLT_INCLUDE ${PROJECT_BINARY_DIR}/include)
file(REMOVE_RECURSE ${PARABOLT_INCLUDE})

# Called from a room: open_room(TARGET [HEADER...]) shows the room's headers to TARGET and to all that link it;
# only those named, if any are: the room is then shared with a target above.
function(open_room target)
    set(seen ${PARABOLT_INCLUDE}/${target})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME room)
    if(ARGN)
        file(MAKE_DIRECTORY ${seen}/${room})
        foreach(header IN LISTS ARGN)
            file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${seen}/${room}/${header} SYMBOLIC)
        endforeach()
    else()
        file(MAKE_DIRECTORY ${seen})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${seen}/${room} SYMBOLIC)
    endif()
    get_target_property(type ${target} TYPE)
    set(scope PUBLIC)
    if(type STREQUAL INTERFACE_LIBRARY)
        set(scope INTERFACE)
    endif()
    target_include_directories(${target} ${scope} ${seen})
endfunction()
