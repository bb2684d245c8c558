# `format` lays out all sources of ours; `format-check` fails where it would change one.
add_custom_target(format COMMAND ${PROJECT_SOURCE_DIR}/script/format USES_TERMINAL)
add_custom_target(format-check COMMAND ${PROJECT_SOURCE_DIR}/script/format --check USES_TERMINAL)
