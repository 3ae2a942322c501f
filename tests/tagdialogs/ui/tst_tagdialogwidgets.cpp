#include "app/MainWindow.h"
#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/ui/CommandTable.h"
#include "documents/DocumentList.h"
#include "documents/Document.h"
#include "platform/HTMLEdit.h"
#include "support/Shots.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"
#include "tagdialogs/ui/TagDialogCommands.h"
#include "tagdialogs/ui/TagDialog.h"
#include "tagdialogs/ui/frmImage.h"
#include "tagdialogs/ui/frmInput.h"
#include "platform/ui/QtPrompts.h"
#include "tagdialogs/ui/frmProperties.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <Qsci/qsciscintilla.h>

#include <QtTest>

using namespace qly;

class tst_TagDialogWidgets : public QObject
{
    Q_OBJECT
private slots:
    void keyboard_data();
    void keyboard();
    void imagePreview();
    void listKinds();
    void inputBox();
    void commandsAreBound();
};

namespace {

// The mnemonic letter of a caption, lower case; 0 when it has none.
QChar mnemonic(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption.at(i) == u'&') {
            if (caption.at(i + 1) != u'&')
                return caption.at(i + 1).toLower();
            ++i;
        }
    }
    return QChar();
}

bool takesTab(QWidget *w)
{
    // Controls of the dialog itself, not of a combo box's pop-up list.
    return w->window()->inherits("QDialog") && w->isVisibleTo(w->window()) && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)
           && !qobject_cast<QTabWidget *>(w) && !w->focusProxy();
}

// The values a dialog needs before OK writes anything: object name and text.
QList<QPair<const char *, QString>> required(const QString &dialog)
{
    if (dialog == QLatin1String("frmImage"))
        return {{"cmbSrc", QStringLiteral("pic.gif")}};
    if (dialog == QLatin1String("frmLink"))
        return {{"cmbURL", QStringLiteral("a.html")}};
    if (dialog == QLatin1String("frmFTPLink") || dialog == QLatin1String("frmNews")
        || dialog == QLatin1String("frmMail"))
        return {{"cmbValue", QStringLiteral("x")}};
    if (dialog == QLatin1String("frmAnchor"))
        return {{"cmbInput", QStringLiteral("top")}};
    if (dialog == QLatin1String("frmBackSound"))
        return {{"cmbFile", QStringLiteral("a.mid")}};
    if (dialog == QLatin1String("frmFont"))
        return {{"chkb", QStringLiteral("1")}};
    if (dialog == QLatin1String("frmProperties"))
        return {{"txtTitle", QStringLiteral("New")}};
    if (dialog == QLatin1String("frmList"))
        return {{"txtHeader", QStringLiteral("H")}};
    return {};
}

void fill(QWidget *dialog, const char *name, const QString &value)
{
    QWidget *w = dialog->findChild<QWidget *>(QString::fromLatin1(name));
    QVERIFY2(w, name);
    if (auto *c = qobject_cast<QComboBox *>(w))
        c->setEditText(value);
    else if (auto *e = qobject_cast<QLineEdit *>(w))
        e->setText(value);
    else if (auto *b = qobject_cast<QAbstractButton *>(w))
        b->setChecked(true);
}

void checkMnemonics(QDialog *d)
{
    QHash<QChar, QString> used;
    QList<QLabel *> labels;
    for (QWidget *w : d->findChildren<QWidget *>()) {
        if (!w->isVisibleTo(d))
            continue;
        QString caption;
        if (auto *l = qobject_cast<QLabel *>(w)) {
            caption = l->text();
            if (!mnemonic(caption).isNull()) {
                QVERIFY2(l->buddy(), qPrintable(caption));
                labels << l;
            }
        } else if (auto *b = qobject_cast<QAbstractButton *>(w)) {
            caption = b->text();
        } else if (auto *g = qobject_cast<QGroupBox *>(w)) {
            caption = g->title();
        } else if (auto *t = qobject_cast<QTabWidget *>(w)) {
            for (int i = 0; i < t->count(); ++i) {
                const QChar m = mnemonic(t->tabText(i));
                QVERIFY2(!used.contains(m), qPrintable(t->tabText(i)));
                used.insert(m, t->tabText(i));
            }
        }
        const QChar m = mnemonic(caption);
        if (m.isNull())
            continue;
        QVERIFY2(!used.contains(m), qPrintable(caption + QStringLiteral(" and ") + used.value(m)));
        used.insert(m, caption);
    }
    for (QLabel *l : std::as_const(labels)) {
        if (!l->buddy()->isEnabled())
            continue;
        QTest::keyClick(d, mnemonic(l->text()).toLatin1(), Qt::AltModifier);
        QWidget *focus = QApplication::focusWidget();
        QVERIFY2(focus == l->buddy() || focus->parentWidget() == l->buddy(), qPrintable(l->text()));
    }
}

} // namespace

void tst_TagDialogWidgets::keyboard_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : tagdialogs::ui::tagDialogNames())
        QTest::newRow(qPrintable(name)) << name;
}

// Every dialog: Escape leaves the page alone; Tab reaches every control and
// returns; each mnemonic is used once and takes the focus to its control;
// Enter is OK.
void tst_TagDialogWidgets::keyboard()
{
    QFETCH(QString, name);
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    const QString page = QStringLiteral("<HTML><HEAD></HEAD><BODY>x</BODY></HTML>");
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("p"), page, env.path(QStringLiteral("p.html")));
    doc->edit.SetSel(26, 27);

    // Escape.
    std::unique_ptr<tagdialogs::ui::TagDialog> d(tagdialogs::ui::makeTagDialog(name, nullptr));
    d->load();
    d->show();
    QVERIFY(QTest::qWaitForWindowActive(d.get()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    QCOMPARE(d->result(), int(QDialog::Rejected));
    QVERIFY(d->isHidden());
    QCOMPARE(doc->edit.Text(), page);

    d.reset(tagdialogs::ui::makeTagDialog(name, nullptr));
    d->load();
    d->show();
    QVERIFY(QTest::qWaitForWindowActive(d.get()));

    // Tab order: every control that takes the Tab key is reached.
    QSet<QWidget *> expected;
    for (QWidget *w : d->findChildren<QWidget *>()) {
        if (takesTab(w))
            expected << w;
    }
    QVERIFY(expected.size() >= 3);
    QWidget *first = QApplication::focusWidget();
    QVERIFY(first);
    QSet<QWidget *> reached{first};
    for (int i = 0; i < 2 * expected.size() && reached.size() < expected.size() + 1; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached << QApplication::focusWidget();
    }
    for (QWidget *w : std::as_const(expected))
        QVERIFY2(reached.contains(w), qPrintable(w->objectName() + u' ' + QString::fromLatin1(w->metaObject()->className()) + u' ' + w->parentWidget()->objectName()));

    // Mnemonics, on each page of a tabbed dialog: one use of each letter among
    // the visible captions; a label's takes the focus to its control.
    auto *tabs = d->findChild<QTabWidget *>();
    for (int page = 0; page < (tabs ? tabs->count() : 1); ++page) {
        if (tabs)
            tabs->setCurrentIndex(page);
        checkMnemonics(d.get());
    }
    if (tabs)
        tabs->setCurrentIndex(0);

    // Enter in the first control is OK.
    for (const auto &r : required(name))
        fill(d.get(), r.first, r.second);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Return);
    QCOMPARE(prompts.texts(), QStringList());
    QCOMPARE(d->result(), int(QDialog::Accepted));
    QVERIFY(doc->edit.Text() != page);
}

void tst_TagDialogWidgets::imagePreview()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    workspace.addDocument(QStringLiteral("p"), QString(), env.path(QStringLiteral("p.html")));
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(env.path(QStringLiteral("red.png"))));
    QVERIFY(picture.save(env.path(QStringLiteral("red.webp"))));
    env.write(QStringLiteral("round.svg"),
              "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'><circle cx='24' cy='24' r='20'/></svg>");
    env.write(QStringLiteral("fake.gif"), "this is text, not a picture");

    tagdialogs::ui::frmImage d(nullptr);
    d.load();
    auto *src = d.findChild<QComboBox *>(QStringLiteral("cmbSrc"));
    auto *width = d.findChild<QLineEdit *>(QStringLiteral("txtWidth"));
    auto *height = d.findChild<QLineEdit *>(QStringLiteral("txtHeight"));
    auto *preview = d.findChild<QLabel *>(QStringLiteral("picPreview"));
    auto *facts = d.findChild<QLabel *>(QStringLiteral("lblFacts"));

    // A relative source is found beside the page; its real size fills the fields.
    src->setEditText(QStringLiteral("red.png"));
    QCOMPARE(width->text(), QStringLiteral("30"));
    QCOMPARE(height->text(), QStringLiteral("20"));
    QVERIFY(!preview->pixmap().isNull());
    QVERIFY2(facts->text().contains(QStringLiteral("30 x 20")), qPrintable(facts->text()));
    QVERIFY(facts->text().contains(QStringLiteral(" bytes")));

    // A typed size stays; "Actual size" puts the file's back.
    width->setText(QStringLiteral("5"));
    height->setText(QStringLiteral("5"));
    src->setEditText(env.path(QStringLiteral("round.svg")));
    QCOMPARE(width->text(), QStringLiteral("5"));
    d.findChild<QAbstractButton *>(QStringLiteral("cmdActualSize"))->click();
    QCOMPARE(width->text(), QStringLiteral("64"));
    QCOMPARE(height->text(), QStringLiteral("48"));
    width->clear();
    height->clear();
    src->setEditText(env.path(QStringLiteral("red.webp")));
    QCOMPARE(width->text(), QStringLiteral("30"));

    // Not a picture, and no file: said in the preview, the fields untouched.
    width->clear();
    height->clear();
    src->setEditText(env.path(QStringLiteral("fake.gif")));
    QVERIFY(preview->pixmap().isNull());
    QVERIFY2(preview->text().contains(QStringLiteral("not a picture")), qPrintable(preview->text()));
    QCOMPARE(width->text(), QString());
    src->setEditText(env.path(QStringLiteral("gone.png")));
    QCOMPARE(preview->text(), QStringLiteral("The file does not exist."));
    auto *warnings = d.findChild<QLabel *>(QStringLiteral("lblWarnings"));
    QVERIFY(warnings->text().contains(QStringLiteral("does not exist")));

    // A dropped file is offered.
    prompts.answer(platform::Answer::Yes);
    d.offerFile(env.path(QStringLiteral("red.png")));
    QCOMPARE(prompts.texts().last(),
             QStringLiteral("Would you like to use ") + env.path(QStringLiteral("red.png")) + QStringLiteral(" as your image ?"));
    QCOMPARE(src->currentText(), env.path(QStringLiteral("red.png")));
}

void tst_TagDialogWidgets::listKinds()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    test::FakeDocument *doc = workspace.addDocument(QStringLiteral("p"), QString());
    std::unique_ptr<tagdialogs::ui::TagDialog> d(tagdialogs::ui::makeTagDialog(QStringLiteral("frmList"), nullptr, 1));
    d->load();
    auto *group = d->findChild<QGroupBox *>();
    auto *type = d->findChild<QComboBox *>(QStringLiteral("cmbType"));
    QCOMPARE(group->title(), QStringLiteral("Numbered List Properties"));
    QVERIFY(d->findChild<QLineEdit *>(QStringLiteral("txtStart"))->isEnabled());
    type->setCurrentIndex(1);
    d->findChild<QComboBox *>(QStringLiteral("cmbKind"))->setCurrentIndex(0);
    QCOMPARE(group->title(), QStringLiteral("Bulleted List Properties"));
    QCOMPARE(type->currentText(), QStringLiteral("Disk"));
    QVERIFY(!d->findChild<QLineEdit *>(QStringLiteral("txtStart"))->isEnabled());
    type->setCurrentIndex(2);
    d->findChild<QPlainTextEdit *>(QStringLiteral("txtLines"))->setPlainText(QStringLiteral("a\nb"));
    d->accept();
    QCOMPARE(doc->edit.Text(), QStringLiteral("<UL TYPE=SQUARE><LI>a\r\n<LI>b\r\n</UL>"));
}

void tst_TagDialogWidgets::inputBox()
{
    tagdialogs::ui::frmInput d;
    d.setPrompt(QStringLiteral("&Name:"));
    d.askText(QStringLiteral("x"), true);
    QCOMPARE(d.txtInput()->echoMode(), QLineEdit::Password);
    d.show();
    QVERIFY(QTest::qWaitForWindowActive(&d));
    d.txtInput()->setFocus();
    QTest::keyClicks(d.txtInput(), QStringLiteral("yz"));
    test::saveShot(&d, QStringLiteral("input-box"));
    QTest::keyClick(d.txtInput(), Qt::Key_Return);
    QCOMPARE(d.model().Tag, QStringLiteral("xyz"));
    QVERIFY(d.isHidden());

    d.askChoice({QStringLiteral("one"), QStringLiteral("two")}, 1);
    d.show();
    QVERIFY(QTest::qWaitForWindowActive(&d));
    QTest::keyClick(&d, Qt::Key_Return);
    QCOMPARE(d.model().Tag, QStringLiteral("QN~CHOSEN"));
    QCOMPARE(d.model().listIndex, 1);
    d.show();
    QVERIFY(QTest::qWaitForWindowActive(&d));
    QTest::keyClick(&d, Qt::Key_Escape);
    QCOMPARE(d.model().Tag, QStringLiteral("QN~CANCELLED"));
    QCOMPARE(d.cmbInput()->currentIndex(), -1);

    // The program asks for passwords in this box: typed and masked, empty, cancelled.
    tagdialogs::ui::installInputBox();
    platform::ui::QtPrompts asker;
    const auto answerWith = [](const QString &typed, int key) {
        QTimer::singleShot(0, [=] {
            QTRY_VERIFY(qobject_cast<tagdialogs::ui::frmInput *>(QApplication::activeModalWidget()));
            auto *box = static_cast<tagdialogs::ui::frmInput *>(QApplication::activeModalWidget());
            QCOMPARE(box->txtInput()->echoMode(), QLineEdit::Password);
            QTest::keyClicks(box->txtInput(), typed);
            QTest::keyClick(box->txtInput(), Qt::Key(key));
        });
    };
    answerWith(QStringLiteral("s3cret"), Qt::Key_Return);
    QCOMPARE(asker.inputPassword(QStringLiteral("Quillery"), QStringLiteral("Password?")), std::optional<QString>(QStringLiteral("s3cret")));
    answerWith(QString(), Qt::Key_Return);
    QCOMPARE(asker.inputPassword(QStringLiteral("Quillery"), QStringLiteral("Password?")), std::optional<QString>(QString()));
    answerWith(QStringLiteral("x"), Qt::Key_Escape);
    QCOMPARE(asker.inputPassword(QStringLiteral("Quillery"), QStringLiteral("Password?")), std::nullopt);
    platform::ui::QtPrompts::inputBox() = nullptr;
}

// The real main window binds every entry and tool of the dialogs; the list
// tools open the list in their kind, the background tool the body tab.
void tst_TagDialogWidgets::commandsAreBound()
{
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    app::frmMain w;
    documents::Workspace::setInstance(&w);
    QVERIFY(documents::CreateDocumentWindow());
    core::EndWait();
    core::gLoadingDocument = false;
    const char *const names[] = {"InsertImage", "InsertURL", "InsertFTP", "InsertEMail", "InsertNews", "InsertAnchor",
                               "InsertHLine", "InsertList", "InsertColor", "IBackSound", "FormatFont",
                               "FormatBaseFont", "ViewProperties", "tlbNList", "tlbBList", "tlbBackground"};
    for (const char *n : names)
        QVERIFY2(w.commands().action(QString::fromLatin1(n))->isEnabled(), n);

    QString seen;
    const auto look = [&seen] {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *group = modal ? modal->findChild<QGroupBox *>() : nullptr)
            seen = group->title();
        else if (auto *tabs = modal ? modal->findChild<QTabWidget *>() : nullptr)
            seen = tabs->tabText(tabs->currentIndex());
        else if (modal)
            seen = modal->objectName();
        if (modal)
            QTest::keyClick(modal, Qt::Key_Escape);
    };
    QTimer::singleShot(200, &w, look);
    QVERIFY(w.commands().run(QStringLiteral("tlbNList")));
    QCOMPARE(seen, QStringLiteral("Numbered List Properties"));
    QTimer::singleShot(200, &w, look);
    QVERIFY(w.commands().run(QStringLiteral("tlbBackground")));
    QCOMPARE(seen, QStringLiteral("B&ody"));
    QTimer::singleShot(200, &w, look);
    QVERIFY(w.commands().run(QStringLiteral("InsertColor")));
    QCOMPARE(seen, QStringLiteral("dlgColor"));
    platform::HTMLEdit &edit = documents::Workspace::CurrentDocument()->txtDoc();
    QCOMPARE(edit.Text(), QString());
    // OK puts the colour in at the caret.
    QTimer::singleShot(200, &w, [] {
        if (auto *colours = qobject_cast<QColorDialog *>(QApplication::activeModalWidget())) {
            colours->setCurrentColor(QColor(0x12, 0xab, 0x0c));
            colours->accept();
        }
    });
    QVERIFY(w.commands().run(QStringLiteral("InsertColor")));
    QCOMPARE(edit.Text(), QStringLiteral("\"#12AB0C\""));
    // The edit control's own Properties key (Alt+Enter) opens the page's properties.
    w.show();
    QApplication::setActiveWindow(&w);
    QVERIFY(QTest::qWaitForWindowActive(&w));
    auto *view = w.findChild<QsciScintilla *>();
    view->setFocus();
    seen.clear();
    QTimer::singleShot(200, &w, look);
    QTest::keyClick(view, Qt::Key_Return, Qt::AltModifier);
    QCOMPARE(seen, QStringLiteral("&General"));
    documents::Workspace::setInstance(nullptr);
}

QTEST_MAIN(tst_TagDialogWidgets)
#include "tst_tagdialogwidgets.moc"
