// One suite, run against the real edit control and the in-memory buffer,
// so the buffer that core tests use cannot drift from the control users see.
#include "documents/MemoryEdit.h"
#include "documents/ui/ScintillaEdit.h"
#include "support/TestEnv.h"

#include <Qsci/qsciscintilla.h>

#include <QFile>
#include <QVBoxLayout>
#include <QtTest>
#include <memory>

using namespace qly;
using platform::HTMLEdit;

namespace {

struct Buffer {
    std::unique_ptr<QWidget> host;
    std::unique_ptr<HTMLEdit> edit;
    documents::ui::ScintillaEdit *sci = nullptr;

    // A key typed at the caret: a real key press on the control.
    void type(QChar c)
    {
        if (sci) {
            QKeyEvent press(QEvent::KeyPress, c.isLetter() && c.unicode() < 128 ? Qt::Key_A + (c.toUpper().unicode() - 'A') : 0,
                            Qt::NoModifier, QString(c));
            QKeyEvent release(QEvent::KeyRelease, press.key(), Qt::NoModifier, QString(c));
            QApplication::sendEvent(sci->view(), &press);
            QApplication::sendEvent(sci->view(), &release);
        } else
            edit->setSelText(QString(c));
    }
};

Buffer makeBuffer(const QString &kind)
{
    Buffer b;
    if (kind == QLatin1String("scintilla")) {
        // The control belongs to its host window, as in a document window.
        b.host = std::make_unique<QWidget>();
        b.sci = new documents::ui::ScintillaEdit(b.host.get());
        b.sci->view()->resize(400, 300);
        b.host->show();
    } else {
        b.edit = std::make_unique<documents::MemoryEdit>();
    }
    return b;
}

} // namespace

class tst_EditBuffer : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_env = std::make_unique<test::TestEnv>(); }
    void cleanup() { m_env.reset(); }

    void selectionRules_data() { kinds(); }
    void selectionRules();
    void positionsCountCharacters_data() { kinds(); }
    void positionsCountCharacters();
    void lineAndColumn_data() { kinds(); }
    void lineAndColumn();
    void findOptions_data() { kinds(); }
    void findOptions();
    void spanAndSelectTag_data() { kinds(); }
    void spanAndSelectTag();
    void dirtyUndoAndClipboard_data() { kinds(); }
    void dirtyUndoAndClipboard();
    void filesRoundTripByteForByte_data();
    void filesRoundTripByteForByte();
    void typingChangesExactlyOneCharacter_data();
    void typingChangesExactlyOneCharacter();
    void readOnlyAndMissingFiles_data() { kinds(); }
    void readOnlyAndMissingFiles();
    void wrappedPageWrapsWhatIsShownFirst();

private:
    void kinds();
    HTMLEdit &edit(Buffer &b) { return b.sci ? static_cast<HTMLEdit &>(*b.sci) : *b.edit; }
    std::unique_ptr<test::TestEnv> m_env;
};

void tst_EditBuffer::kinds()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("scintilla") << QStringLiteral("scintilla");
    QTest::newRow("memory") << QStringLiteral("memory");
}

#define BUFFER                                                                                              \
    QFETCH(QString, kind);                                                                                  \
    Buffer holder = makeBuffer(kind);                                                                       \
    HTMLEdit &e = edit(holder)

void tst_EditBuffer::selectionRules()
{
    BUFFER;
    e.setText(QStringLiteral("<B>bold</B>"));
    e.SetSel(3, 7);
    QCOMPARE(e.SelText(), QStringLiteral("bold"));
    QCOMPARE(e.SelStart(), 3);
    QCOMPARE(e.SelLength(), 4);
    e.setSelText(QStringLiteral("strong"));
    QCOMPARE(e.Text(), QStringLiteral("<B>strong</B>"));
    QCOMPARE(e.SelStart(), 9);
    QCOMPARE(e.SelLength(), 0);
    // With nothing selected, writing inserts at the caret.
    e.setSelStart(0);
    e.setSelText(QStringLiteral("x"));
    QCOMPARE(e.Text(), QStringLiteral("x<B>strong</B>"));
    // SelStart clears the selection; SelLength selects from SelStart.
    e.SetSel(1, 4);
    e.setSelStart(2);
    QCOMPARE(e.SelLength(), 0);
    e.setSelLength(3);
    QCOMPARE(e.SelText(), QStringLiteral("B>s"));
    // Reversed and out-of-range ends, and -1 for the end of the text.
    e.SetSel(5, 2);
    QCOMPARE(e.SelText(), QStringLiteral("B>s"));
    e.SetSel(10, -1);
    QCOMPARE(e.SelText(), QStringLiteral("</B>"));
    e.SetSel(-4, 1000);
    QCOMPARE(e.SelLength(), e.GetTextLength());
}

void tst_EditBuffer::positionsCountCharacters()
{
    BUFFER;
    const QString text = QStringLiteral("aé€") + QString::fromUtf8("\xF0\x9F\x98\x80") + QStringLiteral("b\r\nxé");
    e.setText(text);
    QCOMPARE(e.GetTextLength(), int(text.size()));
    QCOMPARE(e.Text(), text);
    e.SetSel(3, 5);
    QCOMPARE(e.SelText(), QString::fromUtf8("\xF0\x9F\x98\x80"));
    e.SetSel(8, 10);
    QCOMPARE(e.SelText(), QStringLiteral("xé"));
    QCOMPARE(e.SelStart(), 8);
    e.setSelText(QStringLiteral("ü"));
    QCOMPARE(e.Text(), text.left(8) + QStringLiteral("ü"));
    QCOMPARE(e.SelStart(), 9);
}

void tst_EditBuffer::lineAndColumn()
{
    BUFFER;
    e.setText(QStringLiteral("ab\r\ncd\nefé\rgh"));
    auto at = [&](int pos) {
        e.setSelStart(pos);
        int line = 0, col = 0;
        e.GetLineAndCol(line, col);
        return QPoint(line, col);
    };
    QCOMPARE(at(0), QPoint(1, 1));
    QCOMPARE(at(2), QPoint(1, 3));
    QCOMPARE(at(4), QPoint(2, 1));
    QCOMPARE(at(9), QPoint(3, 3));
    QCOMPARE(at(10), QPoint(3, 4));
    QCOMPARE(at(11), QPoint(4, 1));
    QCOMPARE(at(13), QPoint(4, 3));
}

void tst_EditBuffer::findOptions()
{
    BUFFER;
    e.setText(QStringLiteral("Cat cat concat cat"));
    QCOMPARE(e.Find(QStringLiteral("CAT"), 0, -1, 0), 0);
    QCOMPARE(e.SelText(), QStringLiteral("Cat"));
    QCOMPARE(e.Find(QStringLiteral("cat"), 0, -1, platform::FindMatchCase), 4);
    QCOMPARE(e.Find(QStringLiteral("cat"), 5, -1, 0), 11);
    QCOMPARE(e.Find(QStringLiteral("cat"), 5, -1, platform::FindWholeWord), 15);
    QCOMPARE(e.SelStart(), 15);
    QCOMPARE(e.Find(QStringLiteral("cat"), 5, 13, 0), -1);   // the hit must end inside the range
    QCOMPARE(e.Find(QStringLiteral("dog"), 0, -1, 0), -1);
    e.SetSel(0, 0);
    QCOMPARE(e.Find(QStringLiteral("concat"), 0, -1, platform::FindNoHighlight), 8);
    QCOMPARE(e.SelLength(), 0);
    QCOMPARE(e.Find(QString(), 0, -1, 0), -1);
    e.setText(QStringLiteral("été Été"));
    QCOMPARE(e.Find(QStringLiteral("ÉTÉ"), 1, -1, 0), 4);
}

void tst_EditBuffer::spanAndSelectTag()
{
    BUFFER;
    e.setText(QStringLiteral("<A HREF=\"x.html\">link</A> tail"));
    e.setSelStart(3);
    e.Span(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), true, false);
    QCOMPARE(e.SelText(), QStringLiteral("HREF"));
    e.Span(QStringLiteral(">"), true, true);
    QCOMPARE(e.SelText(), QStringLiteral("HREF=\"x.html\""));
    e.setSelStart(21);
    e.Span(QStringLiteral(">"), false, true);
    QCOMPARE(e.SelText(), QStringLiteral("link"));
    e.setSelStart(10);
    e.SelectTag();
    QCOMPARE(e.SelText(), QStringLiteral("<A HREF=\"x.html\">"));
    e.setSelStart(21);   // just before "<"
    e.SelectTag();
    QCOMPARE(e.SelText(), QStringLiteral("</A>"));
    e.setSelStart(25);   // just after ">": outside
    e.SelectTag();
    QCOMPARE(e.SelLength(), 0);
    QCOMPARE(e.SelStart(), 25);
    e.setSelStart(18);   // between tags
    e.SelectTag();
    QCOMPARE(e.SelLength(), 0);
}

void tst_EditBuffer::dirtyUndoAndClipboard()
{
    BUFFER;
    const QString path = m_env->write(QStringLiteral("d.html"), "abc");
    QVERIFY(e.LoadFile(1, path).ok());
    QVERIFY(!e.Dirty());
    e.Undo();   // nothing to undo after a load
    QCOMPARE(e.Text(), QStringLiteral("abc"));
    e.setSelStart(3);
    e.setSelText(QStringLiteral("d"));
    QVERIFY(e.Dirty());
    e.setDirty(false);
    QVERIFY(!e.Dirty());
    e.setDirty(true);
    QVERIFY(e.Dirty());

    e.PrepareUndo();
    e.setSelText(QStringLiteral("e"));
    e.SetSel(0, 1);
    e.setSelText(QStringLiteral("A"));
    e.EndPUndo();
    QCOMPARE(e.Text(), QStringLiteral("Abcde"));
    e.Undo();
    QCOMPARE(e.Text(), QStringLiteral("abcd"));
    e.Redo();
    QCOMPARE(e.Text(), QStringLiteral("Abcde"));
    e.Undo();
    e.Undo();
    QCOMPARE(e.Text(), QStringLiteral("abc"));

    e.SetSel(1, 3);
    e.Cut();
    QCOMPARE(e.Text(), QStringLiteral("a"));
    e.setSelStart(1);
    e.Paste();
    e.Paste();
    QCOMPARE(e.Text(), QStringLiteral("abcbc"));
    e.SetSel(0, 2);
    e.Copy();
    e.setSelStart(5);
    e.Paste();
    QCOMPARE(e.Text(), QStringLiteral("abcbcab"));

    e.setColorMode(platform::ColorOff);
    e.ColorHTML();   // answers, with nothing to show
    QCOMPARE(e.ColorMode(), platform::ColorOff);
    QCOMPARE(e.Text(), QStringLiteral("abcbcab"));
}

void tst_EditBuffer::filesRoundTripByteForByte_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QByteArray high;
    for (int b = 0x80; b <= 0xFF; ++b)
        high += char(b);
    const QByteArray mixed = QByteArray("<P>line one\r\nline two\nthree ") + high + "\r\n\r\nend";
    const QByteArray utf8("<P>caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80\r\n\xef\xbb\xbfx\nlast\r");
    QByteArray binary;
    for (int i = 0; i < 1024; ++i)
        binary += char((i * 37) & 0xFF);
    // Pages longer than the pieces a file is read in, with characters of
    // two to four bytes across every boundary, and one that turns out to
    // be 8-bit only near its end.
    QByteArray large;
    while (large.size() < 3 * 1024 * 1024)
        large += QByteArray(1 + large.size() % 5, 'y') + "<b>x\xc3\xa9</b>\xe2\x82\xac\xf0\x9f\x98\x80";
    QByteArray lateLatin = QByteArray(900 * 1024, 'a') + "caf\xe9";
    QTest::addRow("scintilla UTF-8, several pieces") << QStringLiteral("scintilla") << large;
    QTest::addRow("scintilla 8-bit after several pieces") << QStringLiteral("scintilla") << lateLatin;
    for (const char *kind : {"scintilla", "memory"}) {
        QTest::addRow("%s 8-bit with CR LF and LF", kind) << QString::fromLatin1(kind) << mixed;
        QTest::addRow("%s UTF-8", kind) << QString::fromLatin1(kind) << utf8;
        QTest::addRow("%s binary", kind) << QString::fromLatin1(kind) << binary;
        QTest::addRow("%s empty", kind) << QString::fromLatin1(kind) << QByteArray();
    }
}

void tst_EditBuffer::filesRoundTripByteForByte()
{
    QFETCH(QByteArray, bytes);
    BUFFER;
    const QString in = m_env->write(QStringLiteral("in.html"), bytes);
    QVERIFY(e.LoadFile(1, in).ok());
    const QString out = m_env->path(QStringLiteral("out.html"));
    QVERIFY(e.SaveFile(1, out).ok());
    QCOMPARE(m_env->read(out), bytes);
    // Saving over the loaded file itself keeps it too.
    QVERIFY(e.SaveFile(1, in).ok());
    QCOMPARE(m_env->read(in), bytes);
}

void tst_EditBuffer::typingChangesExactlyOneCharacter_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QChar>("typed");
    QTest::addColumn<QByteArray>("typedBytes");
    const QByteArray latin("Caf\xe9 \x80\x81\x8d\x9d\xff\r\nna\xefve\nend");
    const QByteArray utf8("Caf\xc3\xa9 \xe2\x82\xac\r\nna\xc3\xafve\nend");
    for (const char *kind : {"scintilla", "memory"}) {
        QTest::addRow("%s 8-bit, ASCII", kind) << QString::fromLatin1(kind) << latin << QChar(u'Z') << QByteArray("Z");
        QTest::addRow("%s 8-bit, e acute", kind) << QString::fromLatin1(kind) << latin << QChar(u'é') << QByteArray("\xe9");
        QTest::addRow("%s 8-bit, euro", kind) << QString::fromLatin1(kind) << latin << QChar(0x20AC) << QByteArray("\x80");
        QTest::addRow("%s UTF-8, e acute", kind) << QString::fromLatin1(kind) << utf8 << QChar(u'é')
                                               << QByteArray("\xc3\xa9");
    }
}

void tst_EditBuffer::typingChangesExactlyOneCharacter()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QChar, typed);
    QFETCH(QByteArray, typedBytes);
    BUFFER;
    const QString path = m_env->write(QStringLiteral("page.html"), bytes);
    QVERIFY(e.LoadFile(1, path).ok());
    // After the line break: the characters before it are one byte each in both files but the first line's.
    const int at = int(e.Text().indexOf(u'\n')) + 3;
    const QByteArray prefix = bytes.left(bytes.indexOf('\n') + 3);
    e.setSelStart(at);
    holder.type(typed);
    QCOMPARE(e.SelStart(), at + 1);
    QVERIFY(e.Dirty());
    QVERIFY(e.SaveFile(1, path).ok());
    QCOMPARE(m_env->read(path), prefix + typedBytes + bytes.mid(prefix.size()));
}

void tst_EditBuffer::readOnlyAndMissingFiles()
{
    BUFFER;
    const QString path = m_env->write(QStringLiteral("ro.html"), "keep me");
    QVERIFY(e.LoadFile(1, path).ok());
    e.setText(QStringLiteral("changed"));
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup);
    QCOMPARE(e.SaveFile(1, path).error, core::ErrFileAccess);
    QCOMPARE(m_env->read(path), QByteArray("keep me"));
    QVERIFY(e.Dirty());
    QVERIFY(!e.LoadFile(1, m_env->path(QStringLiteral("missing.html"))).ok());
    QCOMPARE(e.Text(), QStringLiteral("changed"));
    // A directory that has gone: the save fails and says so.
    const core::IoResult gone = e.SaveFile(1, m_env->path(QStringLiteral("no/such/dir/x.html")));
    QVERIFY(!gone.ok());
}

// A page opened with word wrap on wraps the lines on screen at once and the
// rest while the program is idle, not all of them before it is shown.
void tst_EditBuffer::wrappedPageWrapsWhatIsShownFirst()
{
    QByteArray page;
    for (int i = 0; i < 3000; ++i)
        page += "<P>caf\xc3\xa9 " + QByteArray("word ").repeated(80) + "</P>\r\n";
    const QString file = m_env->write(QStringLiteral("long.html"), page);
    QWidget host;
    auto *layout = new QVBoxLayout(&host);
    documents::ui::ScintillaEdit edit(&host);
    layout->addWidget(edit.view());
    host.resize(500, 300);
    host.show();
    QVERIFY(QTest::qWaitForWindowExposed(&host));
    edit.setColorMode(platform::ColorTagSyntax);
    edit.setWordWrap(true);
    QVERIFY(edit.LoadFile(1, file).ok());
    QVERIFY(edit.WordWrap());
    edit.view()->viewport()->repaint();
    // The screen line each line of the page starts on, as wrapped so far.
    const auto screenLine = [&edit](long line) {
        return edit.view()->SendScintilla(QsciScintillaBase::SCI_VISIBLEFROMDOCLINE, line);
    };
    QVERIFY(screenLine(1) > 1);
    QVERIFY(screenLine(2999) < 2 * 2999);
    QTRY_VERIFY_WITH_TIMEOUT(screenLine(2999) >= 3 * 2999, 20000);
    QCOMPARE(edit.Text(), QString::fromUtf8(page));
}

QTEST_MAIN(tst_EditBuffer)
#include "tst_editbuffer.moc"
