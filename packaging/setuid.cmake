# SPDX-License-Identifier: BSD-3-Clause
# Whatever the build was configured to install: the kiv of a package is set-user-id root.
file(GLOB_RECURSE programs ${CPACK_TEMPORARY_DIRECTORY}/kiv)
list(FILTER programs INCLUDE REGEX "/bin/kiv$")
if(NOT programs)
    message(FATAL_ERROR "There is no bin/kiv in the package")
endif()
foreach(program ${programs})
    file(CHMOD ${program} PERMISSIONS SETUID OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
        WORLD_EXECUTE)
endforeach()
