# SPDX-License-Identifier: GPL-3.0-or-later
# wanderkit_embed_text(TARGET FUNCTION FILE): builds the UTF-8 text of FILE into TARGET as the wide
# string that `std::wstring_view FUNCTION()` returns, so tables kept as plain text files are part of the
# program and cannot go missing at run time. Written at configure time; an edit of FILE reconfigures.
function(wanderkit_embed_text target function file)
    get_filename_component(source ${file} ABSOLUTE)
    file(READ ${source} WANDERKIT_EMBEDDED_TEXT)
    string(FIND "${WANDERKIT_EMBEDDED_TEXT}" ")wanderkit-text\"" delimiter)
    if(NOT delimiter EQUAL -1)
        message(FATAL_ERROR "${file} holds the text that ends the embedded string")
    endif()
    set(WANDERKIT_EMBEDDED_FUNCTION ${function})
    file(RELATIVE_PATH WANDERKIT_EMBEDDED_SOURCE ${PROJECT_SOURCE_DIR} ${source})
    set(output ${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp)
    file(CONFIGURE OUTPUT ${output} @ONLY CONTENT [=[
// Written by cmake/EmbedText.cmake from @WANDERKIT_EMBEDDED_SOURCE@.
#include <string_view>

std::wstring_view @WANDERKIT_EMBEDDED_FUNCTION@()
{
    return LR"wanderkit-text(@WANDERKIT_EMBEDDED_TEXT@)wanderkit-text";
}
]=])
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    target_sources(${target} PRIVATE ${output})
endfunction()
