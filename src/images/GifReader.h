#pragma once

#include <QByteArray>
#include <QString>

namespace qly::images {

// One frame of an animation as the animator lists it.
struct Frame {
    QString file;
    bool keepDisposal = false;   // true: the file's own graphic control flags stay
    QString delay;               // milliseconds, as typed
};

// The reading cursor over one GIF file's bytes and the state of the job at
// hand. GIF work copies blocks as bytes and never decodes a pixel. Every read
// is bounds-checked: reading past the end records a message (with the
// offset) and hands back only what is there, so a broken file can stop a job
// but never make it read outside the bytes.
class GifReader
{
public:
    explicit GifReader(QByteArray bytes = {});
    void reset(QByteArray bytes);

    // The job's settings and what it has learned so far.
    bool TransparencyMode = false;
    quint16 TransparentIndex = 0;
    bool FirstFrame = false;
    bool LocalPalettes = false;
    int PaletteSizeBits = 0;
    int PaletteSorted = 0;
    QByteArray GlobalPalette;
    QByteArray LocalPalette;
    int ScreenWidth = 0;
    int ScreenHeight = 0;
    QByteArray Screen;           // the last logical screen block read

    // Position of the next byte, counted from 1.
    qsizetype FilePos = 1;
    qsizetype size() const { return m_bytes.size(); }
    bool atEnd() const { return FilePos > m_bytes.size(); }

    // The first problem met, or empty.
    const QString &error() const { return m_error; }
    bool failed() const { return !m_error.isEmpty(); }
    void fail(const QString &what);

    QByteArray GetBytes(qsizetype count = 1);
    // One byte; 0 past the end.
    quint8 GetByte();
    // The n-th byte ahead (1: the byte at FilePos) without moving; 0 past the end.
    quint8 PeekByte(qsizetype n = 1) const;
    bool ahead(quint8 first, quint8 second) const { return PeekByte(1) == first && PeekByte(2) == second; }

    // A run of data sub-blocks, terminator included.
    QByteArray ReadSubBlocks();
    // True when the six bytes start with "GIF" in any case.
    bool ReadSignature();
    QByteArray ReadLogicalScreen();
    QByteArray ReadImageBlock();
    // A graphic control block made or edited for `frame`, with the comment
    // and the image (or plain text) that follow it.
    QByteArray ReadFrameBlock(const Frame &frame);
    QByteArray ReadGraphicControl(const Frame &frame);
    // An application or comment extension, read over and handed back; any
    // other block gives nothing and does not advance.
    QByteArray SkipExtension();
    // The last image block of the file, ready for an animation; empty on
    // failure (see error()).
    QByteArray ReadFrameFile(const Frame &frame);
    // Reading stops before a byte that starts no block once an image has
    // been read, as readers do: the end of the image data.
    bool atBlockEnd() const;

private:
    QByteArray readColourTable(int sizeBits);

    QByteArray m_bytes;
    QString m_error;
};

// Hundredths of a second for a delay in milliseconds typed as text, rounded
// to the nearest with ties to the even neighbour; 0 to 65535.
int DelayHundredths(const QString &milliseconds);
// The leading number of a text as the old runtime's Val reads it: blanks
// ignored, digits with an optional sign and decimal point; 0 for none.
double Val(const QString &text);
// Low byte, then high byte.
QByteArray LittleEndian16(int value);

} // namespace qly::images
