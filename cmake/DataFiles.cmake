# The data files beside the programs are CP932 with CR LF; their sources are the UTF-8 texts in dat/.
# A file is written only when its source has changed since it was last written, or when it is gone:
# users edit these files from within the program, and a rebuild must not undo that.
add_custom_target(data_files ALL
  COMMAND ${PROJECT_SOURCE_DIR}/cmake/encode-data ${PROJECT_SOURCE_DIR}/dat ${PROJECT_BINARY_DIR}
  COMMENT "Data files"
  VERBATIM)
