# help_texts: the manual and the questions and answers. help_pictures: the pictures that they show, no others.
# SPDX-License-Identifier: GPL-3.0-or-later
file(GLOB help_texts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*.hlp)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${help_texts})
set(help_pictures)
foreach(text ${help_texts})
  file(READ ${text} contents)
  string(REGEX MATCHALL "\\(pictures/[^)]+\\)" links "${contents}")
  foreach(link ${links})
    string(REGEX REPLACE "\\((.*)\\)" "${PROJECT_SOURCE_DIR}/docs/\\1" picture ${link})
    list(APPEND help_pictures ${picture})
  endforeach()
endforeach()
list(REMOVE_DUPLICATES help_pictures)
