# The edit control is QScintilla, built from the copy under third_party/ so
# that its long-line layout can be our own (see third_party/qscintilla).
add_subdirectory(${CMAKE_SOURCE_DIR}/third_party/qscintilla ${CMAKE_BINARY_DIR}/third_party/qscintilla)
