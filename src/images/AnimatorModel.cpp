#include "images/AnimatorModel.h"
#include "images/PictureSize.h"

#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "generators/AppletFallback.h"
#include "markup/Links.h"
#include "platform/Prompts.h"
#include "publish/Preview.h"

#include <QFile>

namespace qly::images {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

QString param(const QString &name, const QString &value)
{
    return QStringLiteral("<param name=\"") + name + QStringLiteral("\" value=\"") + value + QStringLiteral("\">") + kCrLf;
}

QString padded(quint32 component)
{
    return QStringLiteral("%1").arg(component, 3, 10, QLatin1Char('0'));
}

QString linkFor(const QString &file)
{
    const QString link = markup::RelativeLink(file);
    return link.isEmpty() ? markup::PathToFileUrl(file) : link;
}

} // namespace

std::function<bool(const QString &, const QString &)> &AnimatorModel::convertFrame()
{
    static std::function<bool(const QString &, const QString &)> convert;
    return convert;
}

QString TempRelativeAddress(const QString &file)
{
    return markup::PathToFileUrl(file);
}

bool AnimatorModel::AddFile(const QString &path)
{
    if (!core::FileExists(path))
        return false;
    if (rows.size() >= kMaxFrames) {
        platform::MsgBox(QStringLiteral("Sorry, the ") + platform::programTitle() + QStringLiteral(" Animator only allows ")
                             + QString::number(kMaxFrames) + QStringLiteral(" frames per animation."),
                         platform::Buttons::Ok, platform::Icon::Exclamation);
        return false;
    }
    const QString ext = core::GetFileExt(path).toLower();
    if (ext != QLatin1String("gif") && ext != QLatin1String("jpg"))
        return false;
    AnimatorRow row;
    row.frame.file = path;
    row.frame.delay = QStringLiteral("100");
    row.link = linkFor(path);
    row.size = PictureSize(path);
    rows << row;
    return true;
}

void AnimatorModel::MoveRow(int from, int to)
{
    if (from < 0 || from >= rows.size() || to < 0 || to >= rows.size() || from == to)
        return;
    rows.move(from, to);
}

void AnimatorModel::DeleteRow(int row)
{
    if (row >= 0 && row < rows.size())
        rows.removeAt(row);
}

QList<Frame> AnimatorModel::CompileAnimation() const
{
    QList<Frame> frames;
    for (const AnimatorRow &row : rows)
        frames << row.frame;
    return frames;
}

QSize AnimatorModel::largestFrame() const
{
    QSize largest(0, 0);
    for (const AnimatorRow &row : rows)
        largest = largest.expandedTo(row.size);
    return largest;
}

QString AnimatorModel::GenerateAppletTag(bool absolute, const QString &fallbackGif) const
{
    const QSize largest = largestFrame();
    const QString w = width.trimmed().isEmpty() ? QString::number(largest.width()) : width;
    const QString h = height.trimmed().isEmpty() ? QString::number(largest.height()) : height;
    QString tag = QStringLiteral("<APPLET Code=\"quillanim.class\" WIDTH=") + w + QStringLiteral(" HEIGHT=") + h
                  + QStringLiteral(">") + kCrLf;
    if (rows.isEmpty()) {
        platform::MsgBox(QStringLiteral("You must have at least one frame to create an animation."));
        return {};
    }
    QString list;
    for (const AnimatorRow &row : rows)
        list += (absolute ? TempRelativeAddress(row.frame.file) : row.link) + QStringLiteral(", ");
    list.chop(2);
    tag += param(QStringLiteral("imagelist"), list);

    QString speed = QStringLiteral("0");
    if (horizontal != DontMoveSideways) {
        speed = horzSpeed.trimmed();
        if (speed.isEmpty())
            speed = QStringLiteral("10");
        else if (horizontal == RightToLeft)
            speed.prepend(u'-');
    }
    tag += param(QStringLiteral("move"), speed + QStringLiteral(",0"));
    tag += param(QStringLiteral("pause"), pause);
    tag += param(QStringLiteral("enddelay"), enddelay);
    tag += param(QStringLiteral("bounce"), cmbWrap == BounceOffEdge ? QStringLiteral("true") : QStringLiteral("false"));
    if (chkBack)
        tag += param(QStringLiteral("bg"), padded(lfcBack % 256) + u',' + padded((lfcBack / 256) % 256) + u','
                                               + padded(lfcBack / 65536));
    if (!soundtrack.isEmpty())
        tag += param(QStringLiteral("soundtrack"), absolute ? TempRelativeAddress(soundtrack) : linkFor(soundtrack));
    if (!fallbackGif.isEmpty())
        tag += QStringLiteral("<img src=\"") + fallbackGif + QStringLiteral("\" width=") + w + QStringLiteral(" height=")
               + h + QStringLiteral(" alt=\"\">") + kCrLf;
    tag += QStringLiteral("</APPLET>") + kCrLf;
    return tag;
}

QString AnimatorModel::gifExportProblem() const
{
    if (txtRepeat.trimmed().isEmpty())
        return QStringLiteral("The number of times the animation will be repeated must be entered before a GIF 89a can be created.");
    if (!rows.isEmpty() && rows.first().frame.delay.trimmed().isEmpty())
        return QStringLiteral("The Delay Time For the First Frame must be entered before a GIF 89a can be created.");
    return {};
}

AnimationSettings AnimatorModel::gifSettings() const
{
    AnimationSettings s;
    s.width = width;
    s.height = height;
    s.repeat = txtRepeat;
    s.localPalettes = chkPalette;
    s.standardTrailer = standardTrailer;
    return s;
}

bool AnimatorModel::convertFrames() const
{
    bool ok = true;
    for (const AnimatorRow &row : rows) {
        const QString &file = row.frame.file;
        if (file.isEmpty() || core::GetFileExt(file).toLower() == QLatin1String("gif") || !QFile::exists(file))
            continue;
        ok = convertFrame() && convertFrame()(file, FrameGifPath(file)) && ok;
    }
    return ok;
}

QString AnimatorModel::cmbExport_Click()
{
    const QString problem = gifExportProblem();
    if (!problem.isEmpty()) {
        platform::MsgBox(problem);
        return {};
    }
    convertFrames();
    QString written;
    const bool ok = WriteAnimatedGif(CompileAnimation(), gifSettings(), &written);
    if (ok)
        platform::MsgBox(QStringLiteral("The animated file was created successfully."));
    else if (!rows.isEmpty() && !written.isNull())
        platform::MsgBox(QStringLiteral("There was an error creating the animated file."));
    return ok ? written : QString();
}

QString AnimatorModel::PreviewAnimationDoc()
{
    const QString dir = core::ProgramDirectory();
    const QString page = publish::PreviewFileName(dir);
    QString fallback;
    if (generators::AppletFallbackOn() && !rows.isEmpty()) {
        // Today's browsers show the animated GIF that stands in for the applet.
        convertFrames();
        const AnimationBuild build = BuildAnimatedGif(CompileAnimation(), gifSettings());
        const QString gif = core::JoinPath(dir, QStringLiteral("~qlyanim.gif"));
        if (build.ok() && core::writeFileAtomically(gif, build.bytes).ok())
            fallback = TempRelativeAddress(gif);
    }
    const QString tag = GenerateAppletTag(true, fallback);
    if (tag.isEmpty())
        return {};
    const QString text = QStringLiteral("<HTML><TITLE>") + core::versionCaption() + QStringLiteral(" Animation Preview</TITLE>")
                         + kCrLf + QStringLiteral("<BODY>") + tag + QStringLiteral("</BODY>") + QStringLiteral("</HTML>");
    if (!core::writeFileAtomically(page, text.toUtf8()).ok()) {
        platform::MsgBox(QStringLiteral("No file handles available. Increase the FILES= setting in your AUTOEXEC.BAT or close some applications."));
        return {};
    }
    publish::CopyNeededApplets(text, dir, QStringLiteral("lfledhelp.class"));
    return page;
}

} // namespace qly::images
