#include "generators/AppletFallback.h"
#include "images/AnimatorModel.h"
#include "images/GifReader.h"
#include "images/PictureSize.h"
#include "support/FakeWorkspace.h"
#include "support/ScriptedPrompts.h"
#include "support/TestEnv.h"

#include <QDir>
#include <QtTest>

using namespace qly;
using images::AnimatorModel;

namespace {

const QString kFrames = QStringLiteral(TEST_DATA_DIR "/gif/frames/");

QByteArray readBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// A site folder with the page, two GIF frames and a JPEG frame.
struct Site {
    test::TestEnv env;
    test::ScriptedPrompts prompts;
    test::FakeWorkspace workspace;
    QString a, b, photo;

    Site()
    {
        QDir(env.dir()).mkpath(QStringLiteral("site/img"));
        a = env.write(QStringLiteral("site/img/a.gif"), readBytes(kFrames + QStringLiteral("a.gif")));
        b = env.write(QStringLiteral("site/img/b.gif"), readBytes(kFrames + QStringLiteral("b.gif")));
        photo = env.write(QStringLiteral("site/img/photo.jpg"), "a JPEG's bytes");
        workspace.addDocument(QStringLiteral("page"), QString(), env.path(QStringLiteral("site/page.htm")));
        images::pictureSizeHook() = [](const QString &file) {
            return file.endsWith(QLatin1String(".jpg")) ? QSize(40, 2) : QSize(6, 30);
        };
    }
};

} // namespace

class tst_Animator : public QObject
{
    Q_OBJECT

private slots:
    void framesAndTheirLimit();
    void appletTag();
    void gifOutput();
    void previewPage();
};

void tst_Animator::framesAndTheirLimit()
{
    Site site;
    AnimatorModel m;
    QVERIFY(!m.AddFile(site.env.path(QStringLiteral("site/img/none.gif"))));
    QVERIFY(!m.AddFile(site.env.write(QStringLiteral("site/img/p.png"), "png")));
    for (int i = 0; i < 8; ++i)
        QVERIFY(m.AddFile(i % 2 ? site.a : site.b));
    QVERIFY(site.prompts.shown.isEmpty());
    QVERIFY(!m.AddFile(site.a));
    QCOMPARE(m.rows.size(), 8);
    QCOMPARE(site.prompts.shown.size(), 1);
    QCOMPARE(site.prompts.shown[0].text, QStringLiteral("Sorry, the Quillery Animator only allows 8 frames per animation."));
    QCOMPARE(site.prompts.shown[0].title, QStringLiteral("Quillery"));
    QCOMPARE(site.prompts.shown[0].icon, platform::Icon::Exclamation);

    m.MoveRow(0, 7);
    QCOMPARE(m.rows[7].frame.file, site.b);
    QCOMPARE(m.rows[0].frame.file, site.a);
    m.DeleteRow(7);
    m.MoveRow(3, 99);
    QCOMPARE(m.rows.size(), 7);
    m.cmdClear_Click();
    QVERIFY(m.rows.isEmpty());
}

void tst_Animator::appletTag()
{
    Site site;
    AnimatorModel m;
    QVERIFY(m.GenerateAppletTag().isEmpty());
    QCOMPARE(site.prompts.texts().value(0), QStringLiteral("You must have at least one frame to create an animation."));

    QVERIFY(m.AddFile(site.a));
    QVERIFY(m.AddFile(site.photo));   // a JPEG stays one in the tag
    m.horizontal = AnimatorModel::RightToLeft;
    m.cmbWrap = AnimatorModel::DisappearOffEdge;
    m.chkBack = true;
    m.lfcBack = 0;
    m.pause = QStringLiteral("150");
    m.enddelay = QStringLiteral("2000");
    m.soundtrack = site.env.write(QStringLiteral("site/snd/tune.au"), "au");
    QCOMPARE(m.GenerateAppletTag(),
             QStringLiteral("<APPLET Code=\"quillanim.class\" WIDTH=40 HEIGHT=30>\r\n"
                            "<param name=\"imagelist\" value=\"img/a.gif, img/photo.jpg\">\r\n"
                            "<param name=\"move\" value=\"10,0\">\r\n"
                            "<param name=\"pause\" value=\"150\">\r\n"
                            "<param name=\"enddelay\" value=\"2000\">\r\n"
                            "<param name=\"bounce\" value=\"false\">\r\n"
                            "<param name=\"bg\" value=\"000,000,000\">\r\n"
                            "<param name=\"soundtrack\" value=\"snd/tune.au\">\r\n"
                            "</APPLET>\r\n"));

    // A typed speed takes the sign; typed sizes stand; colour components padded.
    m.horzSpeed = QStringLiteral(" 5 ");
    m.width = QStringLiteral("320");
    m.height = QStringLiteral("50%");
    m.lfcBack = 0x0A80FF;
    m.soundtrack.clear();
    m.cmbWrap = AnimatorModel::BounceOffEdge;
    const QString tag = m.GenerateAppletTag(false, QStringLiteral("anim.gif"));
    QVERIFY(tag.startsWith(QStringLiteral("<APPLET Code=\"quillanim.class\" WIDTH=320 HEIGHT=50%>\r\n")));
    QVERIFY(tag.contains(QStringLiteral("<param name=\"move\" value=\"-5,0\">\r\n")));
    QVERIFY(tag.contains(QStringLiteral("<param name=\"bg\" value=\"255,128,010\">\r\n")));
    QVERIFY(tag.contains(QStringLiteral("<param name=\"bounce\" value=\"true\">\r\n")));
    QVERIFY(tag.endsWith(QStringLiteral("<img src=\"anim.gif\" width=320 height=50% alt=\"\">\r\n</APPLET>\r\n")));
    m.horizontal = AnimatorModel::DontMoveSideways;
    QVERIFY(m.GenerateAppletTag().contains(QStringLiteral("value=\"0,0\"")));
    QVERIFY(m.GenerateAppletTag(true).contains(QStringLiteral("value=\"file://") + site.a));
}

void tst_Animator::gifOutput()
{
    Site site;
    AnimatorModel m;
    QVERIFY(m.AddFile(site.a));
    QVERIFY(m.AddFile(site.photo));
    m.txtRepeat.clear();
    QVERIFY(m.cmbExport_Click().isEmpty());
    QCOMPARE(site.prompts.texts().value(0),
             QStringLiteral("The number of times the animation will be repeated must be entered before a GIF 89a can be created."));
    m.txtRepeat = QStringLiteral("2");
    m.rows[0].frame.delay.clear();
    QVERIFY(m.cmbExport_Click().isEmpty());
    QCOMPARE(site.prompts.texts().value(1),
             QStringLiteral("The Delay Time For the First Frame must be entered before a GIF 89a can be created."));
    m.rows[0].frame.delay = QStringLiteral("500");

    // The JPEG frame is converted beside the program and read from there.
    QStringList converted;
    AnimatorModel::convertFrame() = [&](const QString &file, const QString &gif) {
        converted << file;
        QFile::copy(QStringLiteral(TEST_DATA_DIR "/gif/frames/b.gif"), gif);
        return true;
    };
    const QString out = site.env.path(QStringLiteral("anim.gif"));
    site.prompts.chooseFiles({out});
    QCOMPARE(m.cmbExport_Click(), out);
    QCOMPARE(converted, QStringList{site.photo});
    QCOMPARE(site.prompts.texts().value(2), QStringLiteral("The animated file was created successfully."));
    QVERIFY(!QFile::exists(images::FrameGifPath(site.photo)));
    const QByteArray gif = site.env.read(QStringLiteral("anim.gif"));
    QCOMPARE(gif.count(QByteArray("\x21\xF9\x04", 3)), 2);
    QVERIFY(gif.contains(QByteArray("\x21\xF9\x04\x09\x32\x00", 6)));   // a.gif's 500 ms, restore to background

    // A frame that went bad on the way is told twice: what and that it failed.
    site.env.write(QStringLiteral("site/img/a.gif"), "GIF89a\x01");
    site.prompts.chooseFiles({out});
    QVERIFY(m.cmbExport_Click().isEmpty());
    QVERIFY(site.prompts.texts().value(3).startsWith(QStringLiteral("An error has occured reading the files")));
    QCOMPARE(site.prompts.texts().value(4), QStringLiteral("There was an error creating the animated file."));
    AnimatorModel::convertFrame() = nullptr;
}

void tst_Animator::previewPage()
{
    Site site;
    AnimatorModel m;
    QVERIFY(m.AddFile(site.a));
    QVERIFY(m.AddFile(site.b));
    const QString page = m.PreviewAnimationDoc();
    QVERIFY(!page.isEmpty());
    const QString text = QString::fromUtf8(readBytes(page));
    QVERIFY(text.startsWith(QStringLiteral("<HTML><TITLE>Quillery 4.01 Animation Preview</TITLE>\r\n<BODY><APPLET")));
    QVERIFY(text.endsWith(QStringLiteral("</APPLET>\r\n</BODY></HTML>")));
    QVERIFY(text.contains(QStringLiteral("value=\"file://") + site.a + QStringLiteral(", file://") + site.b));
    QVERIFY(!text.contains(QStringLiteral("<img")));

    generators::SetAppletFallback(true);
    const QString withGif = QString::fromUtf8(readBytes(m.PreviewAnimationDoc()));
    generators::SetAppletFallback(false);
    const QString gif = site.env.path(QStringLiteral("~qlyanim.gif"));
    QVERIFY(withGif.contains(QStringLiteral("<img src=\"file://") + gif + QStringLiteral("\" width=6 height=30")));
    images::GifReader reader(readBytes(gif));
    QVERIFY(reader.ReadSignature());
}

QTEST_GUILESS_MAIN(tst_Animator)
#include "tst_animator.moc"
