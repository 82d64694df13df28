# Compiles the voice prompts into the program. From assets/voice/prompts.tsv come, in the build directory:
#   voice_bank_data.S   every recording between two symbols, by .incbin
#   voice_symbols.inc   the symbols' declarations, for file scope
#   voice_prompts.inc   {number, "name", "spoken text", begin, end}, one prompt a line, for an array's initialiser

# Puts the three files in <folder> and the assembler file's path in <out>.
function(ventoria_generate_voice_bank folder out)
  set(voice ${PROJECT_SOURCE_DIR}/assets/voice)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${voice}/prompts.tsv)
  # ENCODING keeps the accents: without it every byte above 127 ends a string.
  file(STRINGS ${voice}/prompts.tsv lines ENCODING UTF-8)
  set(data "    .section .rodata\n")
  set(symbols "")
  set(prompts "")
  set(recordings "")
  foreach(line IN LISTS lines)
    if(NOT line MATCHES "^([0-9]+)\t([^\t]*)\t([^\t]+)$")
      message(FATAL_ERROR "assets/voice/prompts.tsv: not number, name, text: ${line}")
    endif()
    set(number ${CMAKE_MATCH_1})
    set(name "${CMAKE_MATCH_2}")
    set(spoken "${CMAKE_MATCH_3}")
    set(wav ${voice}/bank/${number}.wav)
    if(NOT EXISTS ${wav})
      message(FATAL_ERROR "assets/voice/bank/${number}.wav is missing")
    endif()
    foreach(text name spoken)
      string(REPLACE "\\" "\\\\" ${text} "${${text}}")
      string(REPLACE "\"" "\\\"" ${text} "${${text}}")
    endforeach()
    set(begin ventoria_voice_${number}_begin)
    set(end ventoria_voice_${number}_end)
    string(APPEND data
      "    .balign 16\n    .global ${begin}\n${begin}:\n    .incbin \"${wav}\"\n    .global ${end}\n${end}:\n")
    string(APPEND symbols "extern \"C\" const unsigned char ${begin}[];\nextern \"C\" const unsigned char ${end}[];\n")
    string(APPEND prompts "{${number}, \"${name}\", \"${spoken}\", ${begin}, ${end}},\n")
    list(APPEND recordings ${wav})
  endforeach()
  # A program whose objects all say so keeps its stack non-executable.
  string(APPEND data "    .section .note.GNU-stack,\"\",%progbits\n")
  file(CONFIGURE OUTPUT ${folder}/voice_bank_data.S CONTENT "${data}" @ONLY)
  file(CONFIGURE OUTPUT ${folder}/voice_symbols.inc CONTENT "${symbols}" @ONLY)
  file(CONFIGURE OUTPUT ${folder}/voice_prompts.inc CONTENT "${prompts}" @ONLY)
  set_source_files_properties(${folder}/voice_bank_data.S PROPERTIES OBJECT_DEPENDS "${recordings}")
  set(${out} ${folder}/voice_bank_data.S PARENT_SCOPE)
endfunction()
