// The frame editor, its setup and its templates on the real main window, offscreen.
#include "app/MainWindow.h"
#include "core/ui/CommandTable.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "generators/ui/FixedTemplateDialog.h"
#include "generators/ui/FrameScreen.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/UpDown.h"
#include "generators/ui/frmFrame.h"
#include "generators/ui/frmNewFrames.h"
#include "platform/HTMLEdit.h"
#include "support/MainWindowHost.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QtTest>

using namespace qly;
using generators::FrameModel;
using generators::ui::frmFrame;

namespace {

void mouse(QWidget *w, QEvent::Type type, QPointF at, Qt::MouseButtons buttons)
{
    QMouseEvent e(type, at, w->mapToGlobal(at), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                  Qt::NoModifier);
    QCoreApplication::sendEvent(w, &e);
}

} // namespace

class tst_frmFrame : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void clickDragAndTypeThenOk();
    void addDeleteAndTheThirdLevel();
    void browseGivesARelativeSource();
    void setupDialogAndCommand();
    void frameTemplates();

private:
    platform::HTMLEdit &open(const QByteArray &text);

    std::unique_ptr<test::TestEnv> m_env;
    std::unique_ptr<test::ScriptedPrompts> m_prompts;
    std::unique_ptr<app::frmMain> m_main;
};

void tst_frmFrame::init()
{
    m_env = std::make_unique<test::TestEnv>();
    m_prompts = std::make_unique<test::ScriptedPrompts>();
    m_main = test::showMainWindow();
}

void tst_frmFrame::cleanup()
{
    test::closeMainWindow(m_main);
    m_prompts.reset();
    m_env.reset();
}

platform::HTMLEdit &tst_frmFrame::open(const QByteArray &text)
{
    const QString file = m_env->write(QStringLiteral("site/page.html"), text);
    if (!documents::OpenDocumentFile(file))
        qFatal("cannot open the page");
    platform::HTMLEdit &e = m_main->activeDocument()->txtDoc();
    e.SetSel(0, 0);
    return e;
}

void tst_frmFrame::clickDragAndTypeThenOk()
{
    QDir(m_env->dir()).mkpath(QStringLiteral("site"));
    platform::HTMLEdit &e = open("");
    frmFrame dialog(FrameModel::Orientation::Cols, 2, m_main.get(), false);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    generators::ui::FrameScreen *screen = dialog.screen();

    // A click in the left half selects frame 1; the name is typed.
    const QPointF left = screen->toWidget({1500, 2250});
    mouse(screen, QEvent::MouseButtonPress, left, Qt::LeftButton);
    mouse(screen, QEvent::MouseButtonRelease, left, Qt::NoButton);
    QCOMPARE(dialog.model().CurrentFrame(), 0);
    QTest::keyClicks(dialog.nameField(), QStringLiteral("nav"));
    dialog.sourceField()->setEditText(QStringLiteral("nav.htm"));

    // The divider is dragged from 50 % to about 25 %.
    const QPointF edge = screen->toWidget({2990, 2250});
    const QPointF target = screen->toWidget({1490, 2250});
    mouse(screen, QEvent::MouseButtonPress, edge, Qt::LeftButton);
    mouse(screen, QEvent::MouseMove, (edge + target) / 2, Qt::LeftButton);
    mouse(screen, QEvent::MouseMove, target, Qt::LeftButton);
    mouse(screen, QEvent::MouseButtonRelease, target, Qt::NoButton);
    QVERIFY(std::abs(dialog.model().widthPercent(0) - 25) <= 1);
    QCOMPARE(dialog.model().widthPercent(0) + dialog.model().widthPercent(1), 100);

    // A name that starts with no letter or digit is refused.
    mouse(screen, QEvent::MouseButtonPress, screen->toWidget({4000, 2250}), Qt::LeftButton);
    mouse(screen, QEvent::MouseButtonRelease, screen->toWidget({4000, 2250}), Qt::NoButton);
    QCOMPARE(dialog.model().CurrentFrame(), 1);
    QCOMPARE(dialog.nameField()->text(), QString());
    QTest::keyClicks(dialog.nameField(), QStringLiteral("-"));
    QCOMPARE(dialog.nameField()->text(), QString());
    QCOMPARE(m_prompts->texts().last(), QStringLiteral("The first character of the Name should be alphanumeric"));
    QTest::keyClicks(dialog.nameField(), QStringLiteral("main"));

    const int w0 = dialog.model().widthPercent(0);
    dialog.cmdOK_Click();
    QCOMPARE(dialog.Tag(), QStringLiteral("1"));
    QCOMPARE(e.Text(), QStringLiteral("<FRAMESET COLS=\"%1%,%2%\">\r\n"
                                      "       <FRAME  SRC=\"nav.htm\" NAME=\"nav\" SCROLLING=AUTO>\r\n"
                                      "       <FRAME  NAME=\"main\" SCROLLING=AUTO>\r\n"
                                      " </FRAMESET>")
                           .arg(w0)
                           .arg(100 - w0));
}

void tst_frmFrame::addDeleteAndTheThirdLevel()
{
    open("");
    frmFrame dialog(FrameModel::Orientation::Cols, 2, m_main.get(), false);
    QVERIFY(dialog.addButton()->isEnabled());
    QVERIFY(!dialog.deleteButton()->isEnabled());
    dialog.cmdAdd_Click();
    QCOMPARE(dialog.model().frameCount(), 3);
    QVERIFY(dialog.deleteButton()->isEnabled());
    // The new frame is in a divided column: splitting it across is refused.
    dialog.cmdAcross_Click();
    QCOMPARE(dialog.model().frameCount(), 3);
    QVERIFY(m_prompts->texts().last().startsWith(QStringLiteral("There is currently not enough room")));
    dialog.cmdDelete_Click();
    QCOMPARE(dialog.model().frameCount(), 2);
    QCOMPARE(dialog.findChild<QGroupBox *>()->title(), QStringLiteral("Frame2 Properties"));
    QVERIFY(dialog.preview()->refreshNow());
    QVERIFY(m_env->read(QStringLiteral("site/") + QFileInfo(dialog.preview()->pagePath()).fileName())
                .contains("<FRAMESET COLS=\"50%,50%\">"));
}

void tst_frmFrame::browseGivesARelativeSource()
{
    QDir(m_env->dir()).mkpath(QStringLiteral("site/pages"));
    open("");
    const QString target = m_env->write(QStringLiteral("site/pages/news.htm"), "<p>news</p>");
    frmFrame dialog(FrameModel::Orientation::Rows, 2, m_main.get(), false);
    m_prompts->chooseFiles({target});
    dialog.Picture1_Click();
    QCOMPARE(m_prompts->fileRequests.last().title, QStringLiteral("Creating Frame - Select Target"));
    QCOMPARE(m_prompts->fileRequests.last().filterIndex, 2);
    QCOMPARE(dialog.sourceField()->currentText(), QStringLiteral("pages/news.htm"));
    QCOMPARE(dialog.model().frame(dialog.model().CurrentFrame()).source, QStringLiteral("pages/news.htm"));
    // Cancel leaves the field as it was.
    m_prompts->chooseNothing();
    dialog.Picture1_Click();
    QCOMPARE(dialog.sourceField()->currentText(), QStringLiteral("pages/news.htm"));
}

void tst_frmFrame::setupDialogAndCommand()
{
    open("");
    generators::ui::frmNewFrames setup(m_main.get());
    QCOMPARE(setup.question()->text(), QStringLiteral("How Many Columns Are Required?"));
    setup.rowsBox()->click();
    QVERIFY(!setup.columnsBox()->isChecked());
    QCOMPARE(setup.question()->text(), QStringLiteral("How Many Rows  Are Required?"));
    setup.counter()->step(1);
    QCOMPARE(setup.count(), 3);
    QCOMPARE(setup.orientation(), FrameModel::Orientation::Rows);

    QString seen;
    QTimer::singleShot(0, this, [&seen] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            seen = modal->objectName();
            static_cast<QDialog *>(modal)->reject();
        }
    });
    QVERIFY(m_main->commands().run(QStringLiteral("InsertFrame")));
    QCOMPARE(seen, QStringLiteral("frmNewFrames"));
}

void tst_frmFrame::frameTemplates()
{
    platform::HTMLEdit &e = open("");
    QDir(m_env->dir()).mkpath(QStringLiteral("Templates"));
    m_env->write(QStringLiteral("Templates/FrameTemplate1.tpl"), "<FRAMESET COLS=\"25%,50%,25%\"></FRAMESET>");
    generators::ui::frmFrameTemp dialog(m_main.get());
    dialog.cmdTemplate_Click(0);
    QCOMPARE(e.Text(), QStringLiteral("<FRAMESET COLS=\"25%,50%,25%\"></FRAMESET>"));
    dialog.cmdTemplate_Click(3);
    QVERIFY(m_prompts->texts().last().startsWith(QStringLiteral("Template file not found: ")));
    QVERIFY(m_prompts->texts().last().endsWith(QStringLiteral("Templates/FrameTemplate4.tpl")));
    for (int i = 1; i <= 6; ++i)
        QVERIFY(QFile::exists(QStringLiteral(PROGRAM_DATA_DIR "/Templates/FrameTemplate%1.tpl").arg(i)));
}

QTEST_MAIN(tst_frmFrame)
#include "tst_frmframe.moc"
