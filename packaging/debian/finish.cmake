# SPDX-License-Identifier: GPL-2.0-or-later
# Run by CPack between installing and packing: what only a Debian package wants.

set(staged "${CPACK_TEMPORARY_DIRECTORY}")
# Not file(INSTALL), which would put DESTDIR before the path once more.
file(COPY "${CPACK_VEM_COPYRIGHT}" DESTINATION "${staged}/usr/share/doc/vem"
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

file(GLOB pages "${staged}/usr/share/man/man*/*.[0-9]" "${staged}/usr/share/man/*/man*/*.[0-9]")
foreach(page IN LISTS pages)
    execute_process(COMMAND gzip -9 --no-name "${page}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
