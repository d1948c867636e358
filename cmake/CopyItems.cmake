# Copies the sample items from FROM to TO, where the stand-in host finds them. A file in TO that is newer than
# its source stays: after OK the item dialog has written new defaults into the copy of a template.
file(GLOB_RECURSE files RELATIVE ${FROM} ${FROM}/*.lsp ${FROM}/*.TXT ${FROM}/*.png)
foreach(file IN LISTS files)
  if("${FROM}/${file}" IS_NEWER_THAN "${TO}/${file}")
    get_filename_component(folder ${TO}/${file} DIRECTORY)
    file(COPY ${FROM}/${file} DESTINATION ${folder})
  endif()
endforeach()
