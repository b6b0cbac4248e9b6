# The order in which a program's libraries are searched for symbols.
#
# The dynamic linker looks for each symbol in one library after the other. A voice that the engine is linked with has
# 31,000 symbols of its own to find, and would be some hundred and sixtieth to be asked: a quarter of the time that
# linking the program takes. So it is named first. An engine that is built without that voice needs nothing of this.

function(quorvel_link_engine_fast target)
  list(FILTER WEBKIT_LINK_LIBRARIES INCLUDE REGEX "/libwebkitgtk")
  execute_process(COMMAND "${CMAKE_READELF}" --dynamic --wide ${WEBKIT_LINK_LIBRARIES} OUTPUT_VARIABLE needs)
  if(needs MATCHES "\\[(libflite_cmu_time_awb\\.so[.0-9]*)\\]")
    find_library(QUORVEL_ENGINE_VOICE NAMES "${CMAKE_MATCH_1}" REQUIRED)
    mark_as_advanced(QUORVEL_ENGINE_VOICE)
    target_link_options(${target} BEFORE PRIVATE
      "LINKER:--push-state,--no-as-needed" "${QUORVEL_ENGINE_VOICE}" "LINKER:--pop-state")
  endif()
endfunction()
