// The preview tab needs a real display for its browser engine: this test
// runs under Xvfb (see tests/CMakeLists.txt).
#include "core/Workspace.h"
#include "core/ui/MainWindow.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "platform/HTMLEdit.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace qly;
using documents::ui::DocumentWindow;

class tst_PreviewTab : public QObject
{
    Q_OBJECT
private slots:
    void previewShowsTheEditedText();
};

void tst_PreviewTab::previewShowsTheEditedText()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    core::ui::frmMain main;
    core::Workspace::setInstance(&main);
    main.resize(900, 700);
    main.show();
    const QString file = env.write(QStringLiteral("p.html"), "<HTML><BODY><P>Preview me</P></BODY></HTML>");
    QVERIFY(documents::OpenDocumentFile(file));
    auto *doc = dynamic_cast<DocumentWindow *>(main.activeDocument());
    doc->txtDoc().SetSel(15, 25);
    doc->txtDoc().setSelText(QStringLiteral("Edited text"));
    doc->bNeedsPreview = true;
    doc->selectTab(1);
    auto *view = doc->findChild<QWebEngineView *>(QStringLiteral("wbScout"));
    QVERIFY(view);
    QVERIFY(!doc->bNeedsPreview);
    // Asks the page for its text until it shows the edit; answers come back
    // through a shared string, so late answers have somewhere to go.
    auto shown = std::make_shared<QString>();
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
        view->page()->toPlainText([shown](const QString &t) { *shown = t; });
        return shown->contains(QStringLiteral("Edited text"));
    }()), 30000);
    main.unloadDocument(doc);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    core::Workspace::setInstance(nullptr);
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    tst_PreviewTab test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_previewtab.moc"
