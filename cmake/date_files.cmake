# Run by CPack when the files stand in their temporary place: they all get one date and the usual rights.
# SPDX-License-Identifier: GPL-3.0-or-later
execute_process(COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec touch -h -d @$ENV{SOURCE_DATE_EPOCH} {} +
                COMMAND_ERROR_IS_FATAL ANY)
