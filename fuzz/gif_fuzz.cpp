// libFuzzer entry over the GIF block reader: every input is read as an
// animation frame (with and without the frames' own tables) and made
// transparent. Built with ASan and UBSan by fuzz/run_gif_fuzz.sh.
#include "images/GifReader.h"
#include "images/TransparentGif.h"

#include <cstdint>
#include <cstddef>

using namespace qly::images;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (bool local : {false, true}) {
        GifReader reader(bytes);
        reader.FirstFrame = true;
        reader.LocalPalettes = local;
        const Frame frame{QString(), local, QStringLiteral("120")};
        const QByteArray block = reader.ReadFrameFile(frame);
        if (block.isEmpty() != reader.failed())
            __builtin_trap();
    }
    QString error;
    const QByteArray out = TransparentGifBytes(bytes, 3, &error);
    if (out.isEmpty() != !error.isEmpty())
        __builtin_trap();
    return 0;
}
