# Flags of the whole project and the functions that make its targets.

add_library(tombolera_avisos INTERFACE)
target_compile_options(tombolera_avisos INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Wcast-qual -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
    # GCC 12 sees overlaps in std::string's own operator+ (its bug 105651) and, behind a precompiled
    # header, overruns in it too: which files it hits changes with their place on the disk.
    "$<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict;-Wno-array-bounds;-Wno-stringop-overflow;-Wno-stringop-overread>"
    $<$<BOOL:${TOMBOLERA_ESTRICTO}>:-Werror>)
if(TOMBOLERA_SANEADORES)
    add_compile_options(-fsanitize=${TOMBOLERA_SANEADORES} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${TOMBOLERA_SANEADORES})
    # The sanitizers' own code makes GCC see values as uninitialised that are not.
    target_compile_options(tombolera_avisos INTERFACE -Wno-maybe-uninitialized)
endif()

# What only tests or shows is compiled for the addresses alone and without optimising under the
# sanitizers, in less than half the time; the modules that do the work keep all of it.
add_library(tombolera_sin_optimar INTERFACE)
if(TOMBOLERA_SANEADORES)
    target_compile_options(tombolera_sin_optimar INTERFACE -O0 -fno-sanitize=undefined)
endif()

# tombolera_modulo(NAME [DEPS target...]): the static library of the folder it is called from.
# Only the folder itself and those of its dependencies are searched for headers, so that an
# include against the order of the modules does not compile.
function(tombolera_modulo nombre)
    cmake_parse_arguments(M "" "" "DEPS" ${ARGN})
    file(GLOB_RECURSE fuentes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB_RECURSE cabeceras CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    add_library(tombolera_${nombre} STATIC ${fuentes} ${cabeceras})
    set(carpetas ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(cabecera IN LISTS cabeceras)
        get_filename_component(carpeta ${cabecera} DIRECTORY)
        list(APPEND carpetas ${carpeta})
    endforeach()
    list(REMOVE_DUPLICATES carpetas)
    target_include_directories(tombolera_${nombre} PUBLIC ${carpetas})
    target_link_libraries(tombolera_${nombre} PUBLIC ${M_DEPS} PRIVATE tombolera_avisos)
endfunction()

# tombolera_prueba(NAME LIBS target... LABELS rapida|lenta|ui|lote|fuzz): one test program from
# the *_test.cpp of the folder it is called from. All share prueba_core's precompiled test framework,
# unless PRECOMPILADO_PROPIO says that the caller makes its own.
function(tombolera_prueba nombre)
    cmake_parse_arguments(P "PRECOMPILADO_PROPIO" "" "LIBS;LABELS;FUENTES" ${ARGN})
    if(NOT P_FUENTES)
        file(GLOB_RECURSE P_FUENTES CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*_test.cpp)
    endif()
    add_executable(prueba_${nombre} ${P_FUENTES})
    target_link_libraries(prueba_${nombre} PRIVATE ${P_LIBS} tombolera_apoyo GTest::gtest_main tombolera_avisos
        tombolera_sin_optimar)
    if(NOT P_PRECOMPILADO_PROPIO)
        if(nombre STREQUAL "core")
            target_precompile_headers(prueba_core PRIVATE <gtest/gtest.h> <filesystem> <functional>)
        else()
            target_precompile_headers(prueba_${nombre} REUSE_FROM prueba_core)
        endif()
    endif()
    gtest_discover_tests(prueba_${nombre} TEST_PREFIX ${nombre}. DISCOVERY_MODE PRE_TEST
        PROPERTIES LABELS "${P_LABELS}" TIMEOUT 900)
endfunction()
