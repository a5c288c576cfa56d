# What a Debian package wants of files that are already laid out for it, just before it is made: text
# compressed, and dates that two packages of one state have in common.
set(usr "${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}")
execute_process(
    COMMAND gzip --best --no-name "${usr}/share/man/man1/velk.1" "${usr}/share/doc/velk/changelog"
    COMMAND_ERROR_IS_FATAL ANY)

if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(
        COMMAND dpkg-parsechangelog --file "${CPACK_VELK_CHANGELOG}" --show-field Timestamp
        OUTPUT_VARIABLE released OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} "${released}")
endif()
execute_process(
    COMMAND find "${CPACK_TEMPORARY_INSTALL_DIRECTORY}" -exec
            touch --no-dereference "--date=@$ENV{SOURCE_DATE_EPOCH}" "{}" +
    COMMAND_ERROR_IS_FATAL ANY)
