#include "documents/AutoSave.h"

#include "core/Feedback.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "documents/Document.h"
#include "documents/DocumentList.h"
#include "platform/HTMLEdit.h"

#include <QDir>
#include <cmath>

namespace qly::documents {

using namespace qly::core;

namespace {

int g_minutes = 0;

void switchTimer(bool on)
{
    if (autoSaveTimerSwitch())
        autoSaveTimerSwitch()(on);
}

QString autoSaveDirectory()
{
    const QString autoSave = GetFileLocation(QStringLiteral("AutoSave"));
    if (DirExists(autoSave))
        return autoSave;
    const QString documents = GetFileLocation(QStringLiteral("Documents"));
    if (DirExists(documents))
        return documents;
    return QDir::currentPath();
}

// The stem of a document's auto-save file; `index` is its place among the
// process's windows, the main window being 0.
QString autoSaveStem(const Document &doc, int index)
{
    const QString name = doc.bRemote ? FileNameOf(doc.LocalFileName) : FileNameOf(doc.caption());
    const QString stem = StripExtension(StripDocSuffix(name));
    if (stem.startsWith(QLatin1String("Untitled"), Qt::CaseInsensitive))
        return QStringLiteral("quillery") + QString::number(index);
    return stem;
}

} // namespace

AutoSaveTimerSwitch &autoSaveTimerSwitch()
{
    static AutoSaveTimerSwitch s;
    return s;
}

int autoSaveMinutes()
{
    return g_minutes;
}

void resetAutoSaveMinutes()
{
    g_minutes = 0;
}

int LeadingNumber(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size() && (text.at(i) == u' ' || text.at(i) == u'\t'))
        ++i;
    const qsizetype start = i;
    if (i < text.size() && (text.at(i) == u'+' || text.at(i) == u'-'))
        ++i;
    while (i < text.size() && text.at(i).isDigit())
        ++i;
    if (i < text.size() && text.at(i) == u'.') {
        ++i;
        while (i < text.size() && text.at(i).isDigit())
            ++i;
    }
    bool ok = false;
    const double value = text.mid(start, i - start).toDouble(&ok);
    if (!ok || value > 32767.0 || value < -32768.0)
        return 0;
    return int(std::nearbyint(value));
}

void AutoSaveTick()
{
    ++g_minutes;
    // The order of these two tests is part of the behaviour.
    const int threshold = LeadingNumber(GetFileLocation(QStringLiteral("AutoSave")));
    if (g_minutes < threshold)
        return;
    if (threshold <= 0)
        return;

    switchTimer(false);
    const QString dir = autoSaveDirectory();
    const QList<Document *> docs = AllDocuments();
    for (int i = 0; i < docs.size(); ++i) {
        Document &doc = *docs[i];
        if (!doc.txtDoc().Dirty())
            continue;
        const QString stem = autoSaveStem(doc, i + 1);
        ShowStatus(QStringLiteral("AutoSaving file") + QStringLiteral(": ") + stem.toUpper());
        DoEvents();
        // The window may have closed while messages ran.
        if (!AllDocuments().contains(docs[i]))
            continue;
        // A failed auto-save is passed over; the next document goes on.
        const IoResult saved = doc.RawSaveFile(JoinPath(dir, stem + QStringLiteral(".qnb")));
        if (!saved.ok())
            StepFailed(QStringLiteral("Auto-save of ") + stem + QStringLiteral(" failed: ") + saved.message);
    }
    switchTimer(true);
    g_minutes = 0;
    ShowStatus(QString());
    EndWait();
}

} // namespace qly::documents
