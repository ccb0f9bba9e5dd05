# SPDX-License-Identifier: BSD-3-Clause
# Installs into an empty folder: cmake -DBUILD=... -DSTAGE=... -P stage.cmake
file(REMOVE_RECURSE ${STAGE})
set(ENV{DESTDIR} ${STAGE})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "Cannot install into ${STAGE}")
endif()
