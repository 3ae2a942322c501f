// Widget tests start the application as the program does in one respect:
// the previews' browser library, loaded with the first preview, needs the
// application to share its OpenGL contexts from the start.
#include <QCoreApplication>

namespace {

const bool kShared = [] {
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    return true;
}();

} // namespace
