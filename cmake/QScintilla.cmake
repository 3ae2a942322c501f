# Debian's QScintilla for Qt 6 ships no CMake package: find it by hand.
find_path(QSCINTILLA_INCLUDE_DIR Qsci/qsciscintilla.h
          PATHS /usr/include/x86_64-linux-gnu/qt6 /usr/include/qt6 ${Qt6Core_INCLUDE_DIRS}/..
          REQUIRED)
find_library(QSCINTILLA_LIBRARY NAMES qscintilla2_qt6 REQUIRED)
add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
set_target_properties(QScintilla::QScintilla PROPERTIES
  IMPORTED_LOCATION "${QSCINTILLA_LIBRARY}"
  INTERFACE_INCLUDE_DIRECTORIES "${QSCINTILLA_INCLUDE_DIR}"
  INTERFACE_COMPILE_DEFINITIONS QSCINTILLA_DLL)
target_link_libraries(QScintilla::QScintilla INTERFACE Qt6::Widgets Qt6::PrintSupport)
