#pragma once

#include "images/GifAnimation.h"

#include <QList>
#include <QSize>
#include <QString>
#include <functional>

namespace qly::images {

// One row of the animator: the frame record the GIF writer reads, the link
// the applet tag names, and the picture's size.
struct AnimatorRow {
    Frame frame;
    QString link;
    QSize size;
};

// The animator: frames of at most eight pictures and the settings of its
// two outputs, a GIF89a file and an applet tag running quillanim.class.
class AnimatorModel
{
public:
    static constexpr int kMaxFrames = 8;

    enum Horizontal { DontMoveSideways, LeftToRight, RightToLeft };
    enum Vertical { DontMoveUpAndDown, TopToBottom, BottomToTop };
    enum Edge { BounceOffEdge, DisappearOffEdge };

    QList<AnimatorRow> rows;

    // GIF 89a.
    QString txtRepeat = QStringLiteral("0");
    bool chkPalette = false;
    bool standardTrailer = false;
    // Applet.
    bool chkBack = false;
    quint32 lfcBack = 0xFFFFFF;       // 0xBBGGRR
    Horizontal horizontal = DontMoveSideways;
    Vertical vertical = DontMoveUpAndDown;
    Edge cmbWrap = BounceOffEdge;
    QString horzSpeed;                // "Horz Speed:"
    QString pause = QStringLiteral("100");      // "Time Between Frames:"
    QString enddelay = QStringLiteral("1000");  // "Delay Before Restarting:"
    // Properties.
    QString width;
    QString height;
    QString soundtrack;

    // Adds a picture: it must exist, the animation must have room, and it
    // must be a GIF or a JPEG. False when refused (the limit is told).
    bool AddFile(const QString &path);
    void MoveRow(int from, int to);
    void DeleteRow(int row);
    void cmdClear_Click() { rows.clear(); }
    QList<Frame> CompileAnimation() const;
    QSize largestFrame() const;

    // The applet tag, each line ending in CR LF; empty (told) with no frames.
    // `absolute` writes the frames as file URLs, for a page elsewhere;
    // `fallbackGif`, when given, goes inside as an <img> for browsers
    // without applets.
    QString GenerateAppletTag(bool absolute = false, const QString &fallbackGif = {}) const;

    // The settings of the GIF file, or a message when one is missing.
    QString gifExportProblem() const;
    AnimationSettings gifSettings() const;
    // The GIF output: the checks, frames that are no GIF converted through
    // `convertFrame`, WriteAnimatedGif and its result told. The file
    // written, or empty.
    QString cmbExport_Click();

    // The preview page in the program's directory, with the classes it
    // needs beside it; its path, or empty when it could not be written.
    QString PreviewAnimationDoc();

    // The conversion of a frame that is no GIF into FrameGifPath(file): the
    // image side fills it in.
    static std::function<bool(const QString &file, const QString &gif)> &convertFrame();

private:
    bool convertFrames() const;
};

// A file as an absolute link for a page in another folder: "file:///...".
QString TempRelativeAddress(const QString &file);

} // namespace qly::images
