#include "support/MainWindowHost.h"

#include "app/MainWindow.h"
#include "documents/Document.h"

#include <QCoreApplication>

namespace qly::test {

std::unique_ptr<app::frmMain> showMainWindow(QSize size)
{
    auto window = std::make_unique<app::frmMain>();
    documents::Workspace::setInstance(window.get());
    window->resize(size);
    window->show();
    return window;
}

void closeMainWindow(std::unique_ptr<app::frmMain> &window)
{
    if (!window)
        return;
    for (documents::Document *d : window->documentList())
        window->unloadDocument(d);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (documents::Workspace::instance() == window.get())
        documents::Workspace::setInstance(nullptr);
    window.reset();
}

} // namespace qly::test
