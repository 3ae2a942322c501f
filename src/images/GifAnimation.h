#pragma once

#include "images/GifReader.h"

#include <QList>

namespace qly::images {

// What the animator's fields say about the file as a whole.
struct AnimationSettings {
    QString width;              // "Width:"; at or below the largest frame, that frame's width
    QString height;             // "Height:"
    QString repeat;             // repeat count; 0 repeats for ever
    bool localPalettes = false; // each frame carries its file's colour table
    // The file has always ended in the two bytes "59", which readers take for
    // an unknown block and stop at; on, the format's own trailer 0x3B is
    // written instead.
    bool standardTrailer = false;
};

struct AnimationBuild {
    QByteArray bytes;
    QString error;       // "file: what is wrong" for the first frame that failed
    int frameCount = 0;
    bool ok() const { return error.isEmpty(); }
};

// The comment block's text: one sub-block of 183 characters.
QByteArray AnimationComment();

// The GIF that a frame of another kind (a JPEG) is converted to before an
// animation is written: a temporary file in the program's directory.
QString FrameGifPath(const QString &file);

// The animated GIF89a of `frames` (rows with no file, and files that do not
// exist, are passed over), built from the frames' blocks without decoding.
// A converted frame is read from FrameGifPath and deleted afterwards.
AnimationBuild BuildAnimatedGif(const QList<Frame> &frames, const AnimationSettings &settings);

// Asks for the file and writes the animation. False when nothing was
// written: no frames (told), the dialog cancelled (quietly), a frame that is
// no GIF (told), or the write failed. `target` receives the chosen file's
// name once there is one.
bool WriteAnimatedGif(const QList<Frame> &frames, const AnimationSettings &settings, QString *target = nullptr);

} // namespace qly::images
