#include "images/GifAnimation.h"

#include "core/FileIo.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "platform/Prompts.h"

#include <QFile>
#include <QFileInfo>

namespace qly::images {

namespace {

// The file's own name and the first problem found in it.
QString frameError(const QString &file, const QString &what)
{
    return core::FileNameOf(file) + QStringLiteral(": ") + what;
}

int fieldSize(const QString &field, int largest)
{
    const double typed = Val(field);
    return typed <= largest ? largest : static_cast<int>(std::min(typed, 65535.0));
}

QByteArray WriteScreen(const AnimationSettings &settings, int largestWidth, int largestHeight,
                       const QByteArray &firstScreen)
{
    QByteArray screen = LittleEndian16(fieldSize(settings.width, largestWidth));
    screen += LittleEndian16(fieldSize(settings.height, largestHeight));
    return screen + firstScreen;
}

QByteArray WriteLoopBlock(const QString &repeat)
{
    QByteArray block("\x21\xFF\x0B", 3);
    block += "NETSCAPE2.0";
    block += QByteArray("\x03\x01", 2);
    block += LittleEndian16(static_cast<int>(std::clamp(Val(repeat), 0.0, 65535.0)));
    block += '\0';
    return block;
}

QByteArray CommentBlock()
{
    const QByteArray text = AnimationComment();
    QByteArray block("\x21\xFE", 2);
    block += char(text.size());
    block += text;
    block += '\0';
    return block;
}

} // namespace

QByteArray AnimationComment()
{
    return QByteArrayLiteral("This animated Gif file was created using Quillery 4.01\r\n"
                             "Quillery, the desktop editor for people who write HTML by hand.\r\n"
                             "Its frames were joined block by block: no pixels were decoded.");
}

QString FrameGifPath(const QString &file)
{
    const QString stem = QFileInfo(file).completeBaseName();
    const QString tag = QString::number(qHash(QFileInfo(file).absoluteFilePath()), 16);
    return core::JoinPath(core::ProgramDirectory(), QStringLiteral("~qlyanim_") + stem + QLatin1Char('_') + tag
                                                        + QStringLiteral(".gif"));
}

AnimationBuild BuildAnimatedGif(const QList<Frame> &frames, const AnimationSettings &settings)
{
    AnimationBuild build;
    GifReader reader;
    reader.TransparencyMode = false;
    reader.LocalPalettes = settings.localPalettes;
    QByteArray firstScreen;
    QByteArray body;
    int largestWidth = 0;
    int largestHeight = 0;
    for (const Frame &frame : frames) {
        if (frame.file.isEmpty())
            continue;
        const bool converted = core::GetFileExt(frame.file).toLower() != QLatin1String("gif");
        const QString path = converted ? FrameGifPath(frame.file) : frame.file;
        if (!QFileInfo(path).isFile())
            continue;
        QByteArray bytes;
        const core::IoResult read = core::readWholeFile(path, bytes);
        if (converted)
            QFile::remove(path);
        if (!read.ok()) {
            build.error = frameError(frame.file, read.message);
            break;
        }
        reader.reset(bytes);
        reader.FirstFrame = build.frameCount == 0;
        reader.GlobalPalette.clear();
        const QByteArray block = reader.ReadFrameFile(frame);
        if (reader.failed()) {
            build.error = frameError(frame.file, reader.error());
            break;
        }
        if (reader.FirstFrame)
            firstScreen = reader.Screen;
        largestWidth = std::max(largestWidth, reader.ScreenWidth);
        largestHeight = std::max(largestHeight, reader.ScreenHeight);
        body += block;
        ++build.frameCount;
    }
    if (build.ok() && build.frameCount == 0)
        build.error = QStringLiteral("none of the frames' files could be found");
    if (!build.ok())
        return build;

    build.bytes.reserve(body.size() + firstScreen.size() + 256);
    build.bytes += "GIF89a";
    build.bytes += WriteScreen(settings, largestWidth, largestHeight, firstScreen);
    build.bytes += WriteLoopBlock(settings.repeat);
    build.bytes += body;
    build.bytes += CommentBlock();
    build.bytes += settings.standardTrailer ? QByteArray(1, '\x3B') : QByteArray("59");
    return build;
}

bool WriteAnimatedGif(const QList<Frame> &frames, const AnimationSettings &settings, QString *target)
{
    if (frames.isEmpty()) {
        platform::MsgBox(QStringLiteral("You must have at least one frame to create an animation."));
        return false;
    }
    platform::FileRequest request;
    request.title = core::versionCaption() + QStringLiteral(" - Write Animated GIF File");
    request.filter = QStringLiteral("GIF89a Files|*.gif|All Files|*.*");
    request.defaultSuffix = QStringLiteral("gif");
    request.promptOverwrite = true;
    // The dialog starts beside the first frame.
    for (const Frame &frame : frames)
        if (!frame.file.isEmpty()) {
            request.directory = core::DirectoryOf(frame.file);
            break;
        }
    const platform::FileAnswer answer = platform::prompts().saveFile(request);
    if (!answer.accepted())
        return false;
    if (target)
        *target = answer.files.first();

    const AnimationBuild build = BuildAnimatedGif(frames, settings);
    if (!build.ok()) {
        platform::MsgBox(QStringLiteral("An error has occured reading the files") + QStringLiteral("\n\n") + build.error);
        return false;
    }
    // The old file stays whole until the new one is complete.
    return core::writeFileAtomically(answer.files.first(), build.bytes).ok();
}

} // namespace qly::images
