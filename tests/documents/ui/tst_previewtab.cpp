// The preview tab needs a real display for its browser engine: this test
// runs under Xvfb (see tests/CMakeLists.txt).
#include "documents/Workspace.h"
#include "core/ui/CommandTable.h"
#include "app/MainWindow.h"
#include "documents/DocumentList.h"
#include "documents/ui/DocumentWindow.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QPushButton>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace qly;
using documents::ui::DocumentWindow;

class tst_PreviewTab : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void previewShowsTheEditedText();
    void relativeImageAndLinkTo();

private:
    // Opens `name` holding `bytes` and writes `text` over [from, to).
    DocumentWindow *openEdited(const QString &name, const QByteArray &bytes, int from, int to, const QString &text);

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_PreviewTab::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_PreviewTab::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

DocumentWindow *tst_PreviewTab::openEdited(const QString &name, const QByteArray &bytes, int from, int to,
                                           const QString &text)
{
    const QString file = m_env->write(name, bytes);
    if (!documents::OpenDocumentFile(file))
        return nullptr;
    auto *doc = dynamic_cast<DocumentWindow *>(m_main->activeDocument());
    doc->txtDoc().SetSel(from, to);
    doc->txtDoc().setSelText(text);
    return doc;
}

void tst_PreviewTab::previewShowsTheEditedText()
{
    DocumentWindow *doc = openEdited(QStringLiteral("p.html"), "<HTML><BODY><P>Preview me</P></BODY></HTML>", 15, 25,
                                     QStringLiteral("Edited text"));
    QVERIFY(doc);
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
}

// The edited page shows beside its image; "Link To:" links the page shown;
// the copy of the page goes once the tab has loaded it.
void tst_PreviewTab::relativeImageAndLinkTo()
{
    test::TestEnv &env = *m_env;
    QImage image(120, 80, QImage::Format_RGB32);
    image.fill(QColor(220, 20, 30));
    QDir().mkpath(env.path(QStringLiteral("site/img")));
    QVERIFY(image.save(env.path(QStringLiteral("site/img/dot.png"))));
    DocumentWindow *doc = openEdited(QStringLiteral("site/page.html"),
                                     "<HTML><BODY><H1>Title</H1><IMG ID=pic SRC=\"img/dot.png\"></BODY></HTML>", 16, 21,
                                     QStringLiteral("Edited heading"));
    QVERIFY(doc);

    // The preview tool of the toolbar opens the tab.
    QVERIFY(m_main->commands().run(QStringLiteral("tlbHome")));
    QCOMPARE(doc->currentTab(), 1);
    auto *view = doc->findChild<QWebEngineView *>(QStringLiteral("wbScout"));
    QVERIFY(view);
    const QFileInfo page(doc->scoutFile());
    QCOMPARE(page.absolutePath(), env.path(QStringLiteral("site")));
    QVERIFY(page.fileName().startsWith(QStringLiteral("~qn")) && page.suffix() == QLatin1String("htm"));
    auto width = std::make_shared<QVariant>();
    auto shown = std::make_shared<QString>();
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
        view->page()->runJavaScript(QStringLiteral("document.getElementById('pic') ? "
                                                   "document.getElementById('pic').naturalWidth : 0"),
                                    [width](const QVariant &v) { *width = v; });
        view->page()->toPlainText([shown](const QString &t) { *shown = t; });
        return width->toInt() == 120 && shown->contains(QStringLiteral("Edited heading"));
    }()), 30000);
    // The picture is on the screen: its red stands in the grabbed view.
    QImage shot;
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
        shot = view->grab().toImage();
        for (int y = 0; y < shot.height(); y += 2) {
            for (int x = 0; x < shot.width(); x += 2) {
                const QColor c = shot.pixelColor(x, y);
                if (c.red() > 200 && c.green() < 60 && c.blue() < 70)
                    return true;
            }
        }
        return false;
    }()), 15000);
    QVERIFY(shot.save(env.path(QStringLiteral("preview.png"))));
    if (qEnvironmentVariableIsSet("QUILLERY_PREVIEW_SHOT"))
        shot.save(qEnvironmentVariable("QUILLERY_PREVIEW_SHOT"));

    // Loaded, the copy leaves the user's folder; a refresh writes it again.
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(page.filePath()), 15000);
    QVERIFY(doc->scoutFile().isEmpty());
    QVERIFY(m_main->commands().run(QStringLiteral("tlbRefresh")));
    const QString again = doc->scoutFile();
    QVERIFY(!again.isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(again), 15000);
    QVERIFY(QDir(env.path(QStringLiteral("site"))).entryList({QStringLiteral("~q*")}, QDir::Files).isEmpty());
    // Back from another page still shows the edited page (the browser keeps it).
    const QString other = env.write(QStringLiteral("site/other.html"), "<P>Other page</P>");
    view->setUrl(QUrl::fromLocalFile(other));
    QTRY_VERIFY_WITH_TIMEOUT(view->url() == QUrl::fromLocalFile(other) && !view->page()->isLoading(), 15000);
    auto latest = std::make_shared<QString>();
    QVERIFY(m_main->commands().run(QStringLiteral("tlbBack")));
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
        view->page()->toPlainText([latest](const QString &t) { *latest = t; });
        return latest->contains(QStringLiteral("Edited heading"));
    }()), 15000);

    // "Link To:" links the selection to the page in the history box.
    auto *history = doc->findChild<QComboBox *>(QStringLiteral("cmbHistory"));
    history->setCurrentText(QUrl::fromLocalFile(env.path(QStringLiteral("site/more/next page.htm"))).toString());
    const int at = int(doc->txtDoc().Text().indexOf(QStringLiteral("Edited")));
    doc->txtDoc().SetSel(at, at + 6);
    doc->findChild<QPushButton *>(QStringLiteral("cmdLinkTo"))->click();
    QVERIFY(doc->txtDoc().Text().contains(QStringLiteral("<A HREF=\"more/next page.htm\">Edited</A> heading")));

    m_main->unloadDocument(doc);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    tst_PreviewTab test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_previewtab.moc"
