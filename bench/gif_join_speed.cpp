// Writing an animated GIF from eight 320x240 frames, against gifsicle.
//   bench_gif_join make DIR        writes DIR/f1.gif .. f8.gif (noisy pictures, 256 colours)
//   bench_gif_join join OUT F...   joins the frames into OUT once (a whole process, for timing)
//   bench_gif_join time OUT F...   joins them 200 times in process and prints the medians
#include "core/FileIo.h"
#include "images/GifAnimation.h"
#include "images/ui/ImageCodec.h"

#include <QElapsedTimer>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QRandomGenerator>
#include <algorithm>
#include <cstdio>

using namespace qly;

namespace {

int make(const QString &dir)
{
    QRandomGenerator rng(7);
    for (int f = 1; f <= 8; ++f) {
        QImage image(320, 240, QImage::Format_Indexed8);
        image.setColorCount(256);
        for (int i = 0; i < 256; ++i)
            image.setColor(i, qRgb((i * 37 + f * 11) % 256, (i * 91) % 256, (i * 13 + f) % 256));
        for (int y = 0; y < 240; ++y) {
            uchar *row = image.scanLine(y);
            for (int x = 0; x < 320; ++x)
                row[x] = uchar(((x / 16 + y / 16 + f) % 8) * 32 + rng.bounded(8));
        }
        if (!images::ui::SaveGif(image, dir + QStringLiteral("/f%1.gif").arg(f)))
            return 1;
    }
    return 0;
}

QList<images::Frame> frames(const QStringList &files)
{
    QList<images::Frame> list;
    for (const QString &f : files)
        list << images::Frame{f, false, QStringLiteral("100")};
    return list;
}

bool joinOnce(const QString &out, const QList<images::Frame> &list)
{
    images::AnimationSettings s;
    s.repeat = QStringLiteral("0");
    const images::AnimationBuild build = images::BuildAnimatedGif(list, s);
    return build.ok() && core::writeFileAtomically(out, build.bytes).ok();
}

} // namespace

int main(int argc, char **argv)
{
    // Only the making of the frames needs pictures; the join is Qt Core alone.
    if (argc == 3 && qstrcmp(argv[1], "make") == 0) {
        QGuiApplication app(argc, argv);
        return make(QString::fromLocal8Bit(argv[2]));
    }
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    if (args.size() < 3)
        return 2;
    const QList<images::Frame> list = frames(args.mid(2));
    if (args[0] == QLatin1String("join"))
        return joinOnce(args[1], list) ? 0 : 1;
    QList<qint64> times;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer t;
        t.start();
        if (!joinOnce(args[1], list))
            return 1;
        times << t.nsecsElapsed();
    }
    QList<qint64> builds;
    for (int i = 0; i < 200; ++i) {
        QElapsedTimer t;
        t.start();
        images::AnimationSettings s;
        if (!images::BuildAnimatedGif(list, s).ok())
            return 1;
        builds << t.nsecsElapsed();
    }
    std::sort(times.begin(), times.end());
    std::sort(builds.begin(), builds.end());
    std::printf("in process, read, join and write flushed to disk: median %.2f ms, fastest %.2f ms\n",
                times[100] / 1e6, times[0] / 1e6);
    std::printf("in process, read and join without the write: median %.2f ms\n", builds[100] / 1e6);
    return 0;
}
