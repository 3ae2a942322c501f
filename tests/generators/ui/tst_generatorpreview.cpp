// The live previews of the generator dialogs in a real browser engine
// (under Xvfb: the engine does not run on the offscreen platform).
#include "app/MainWindow.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "generators/AppletFallback.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/frmAXObjects.h"
#include "generators/ui/frmTextEffects.h"
#include "generators/ui/frmFrame.h"
#include "generators/ui/frmTable.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QCheckBox>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QSignalSpy>
#include <QWebEnginePage>
#include <QWebEngineView>
#include <QtTest>

using namespace qly;
using generators::TableModel;

namespace {

// The value of a script run in the page, once it has answered.
QVariant evaluate(QWebEngineView *view, const QString &script)
{
    QVariant result;
    bool done = false;
    view->page()->runJavaScript(script, [&](const QVariant &value) {
        result = value;
        done = true;
    });
    for (int waited = 0; !done && waited < 20000; waited += 20)
        QTest::qWait(20);
    return done ? result : QVariant(QStringLiteral("no answer"));
}

} // namespace

class tst_GeneratorPreview : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void tablePreviewFollowsTheFields();
    void framePreviewShowsTheLayout();
    void textEffectPreviewFollowsTheFields();
    void objectPreviewShowsTheTag();

private:
    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_GeneratorPreview::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    core::WriteSetting(QStringLiteral("Display"), QStringLiteral("Scout Refresh"), QStringLiteral("1"));
    m_main = test::showMainWindow();
    const QString file = m_env->write(QStringLiteral("page.html"), "<TABLE><TR><TD>a</TD><TD>b</TD></TR>"
                                                                   "<TR><TD>c</TD><TD>d</TD></TR></TABLE>");
    QVERIFY(documents::OpenDocumentFile(file));
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    e.SetSel(0, e.GetTextLength());
}

void tst_GeneratorPreview::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

void tst_GeneratorPreview::tablePreviewFollowsTheFields()
{
    generators::ui::frmTable dialog(m_main.get(), true);
    dialog.show();
    auto *view = qobject_cast<QWebEngineView *>(dialog.preview()->view());
    QVERIFY(view);
    QSignalSpy loaded(view, &QWebEngineView::loadFinished);
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 1, 30000);
    QCOMPARE(evaluate(view, QStringLiteral("document.querySelectorAll('td').length")).toInt(), 4);

    // A caption typed in shows after the idle second.
    QTest::keyClicks(dialog.field(TableModel::Caption), QStringLiteral("Prices"));
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 2, 30000);
    QCOMPARE(evaluate(view, QStringLiteral("document.querySelector('caption').textContent")).toString(),
             QStringLiteral("Prices"));
}

void tst_GeneratorPreview::framePreviewShowsTheLayout()
{
    generators::ui::frmFrame dialog(generators::FrameModel::Orientation::Cols, 3, m_main.get(), true);
    dialog.show();
    auto *view = qobject_cast<QWebEngineView *>(dialog.preview()->view());
    QVERIFY(view);
    QSignalSpy loaded(view, &QWebEngineView::loadFinished);
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 1, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(evaluate(view, QStringLiteral("window.frames.length")).toInt(), 3, 20000);
    dialog.cmdAdd_Click();
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 2, 30000);
    QTRY_COMPARE_WITH_TIMEOUT(evaluate(view, QStringLiteral("window.frames.length")).toInt(), 4, 20000);
}

void tst_GeneratorPreview::textEffectPreviewFollowsTheFields()
{
    m_env->write(QStringLiteral("classes/lfbounce.class"), "bounce");
    generators::SetAppletFallback(true);
    generators::ui::frmTextEffects dialog(m_main.get());
    dialog.show();
    dialog.findChild<QLineEdit *>(QStringLiteral("txtStringCenter"))->clear();
    dialog.preview();
    auto *view = qobject_cast<QWebEngineView *>(dialog.previewPane()->view());
    QVERIFY(view);
    QSignalSpy loaded(view, &QWebEngineView::loadFinished);
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 1, 30000);
    // The page stands beside the document, with the class it names.
    const QString page = dialog.previewPane()->pagePath();
    QCOMPARE(QFileInfo(page).absolutePath(), QFileInfo(m_env->path(QStringLiteral("page.html"))).absolutePath());
    QVERIFY(QFileInfo::exists(QFileInfo(page).absolutePath() + QStringLiteral("/lfbounce.class")));
    QCOMPARE(evaluate(view, QStringLiteral("document.querySelector('applet span').textContent")).toString(),
             QStringLiteral("Lumenfold Software"));

    // A border ticked shows after the idle second.
    dialog.findChild<QCheckBox *>(QStringLiteral("chkBorder"))->setChecked(true);
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 2, 30000);
    QCOMPARE(evaluate(view, QStringLiteral("getComputedStyle(document.querySelector('applet div')).borderTopStyle"))
                 .toString(),
             QStringLiteral("solid"));
}

void tst_GeneratorPreview::objectPreviewShowsTheTag()
{
    QFile shipped(QStringLiteral(TEST_DATA_DIR "/../../data/axobjects.inf"));
    QVERIFY(shipped.open(QIODevice::ReadOnly));
    m_env->write(QStringLiteral("axobjects.inf"), shipped.readAll());
    generators::ui::frmAXObjects dialog(m_main.get());
    dialog.show();
    dialog.chooseControl(0);
    dialog.preview();
    auto *view = qobject_cast<QWebEngineView *>(dialog.previewPane()->view());
    QVERIFY(view);
    QSignalSpy loaded(view, &QWebEngineView::loadFinished);
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() >= 1, 30000);
    QCOMPARE(evaluate(view, QStringLiteral("document.title")).toString(), QStringLiteral("ActiveX Preview"));
    QVERIFY(!evaluate(view, QStringLiteral("document.querySelector('object').id")).toString().isEmpty());
}

QTEST_MAIN(tst_GeneratorPreview)
#include "tst_generatorpreview.moc"
