#include "core/MoveTemplates.h"

#include "core/Feedback.h"
#include "core/Globals.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "platform/Prompts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace qly::core {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

bool sameDirectory(const QString &a, const QString &b)
{
    return QFileInfo(a).canonicalFilePath() == QFileInfo(b).canonicalFilePath();
}

// Moves one file, replacing `target`; false with the file left where it was.
bool moveFile(const QString &source, const QString &target)
{
    if (QFile::exists(target) && !QFile::remove(target))
        return false;
    return QFile::rename(source, target);
}

} // namespace

void MoveTemplates(const QString &newDir)
{
    QString oldDir = GetFileLocation(QStringLiteral("Templates"));
    if (!DirExists(oldDir))
        oldDir = GetFileLocation(QStringLiteral("Documents"));
    if (!DirExists(oldDir) || !DirExists(newDir) || sameDirectory(oldDir, newDir))
        return;

    const QStringList templates =
        QDir(oldDir).entryList({QStringLiteral("*.tpl")}, QDir::Files, QDir::Name | QDir::IgnoreCase);
    if (templates.isEmpty())
        return;
    const Answer move = platform::MsgBox(
        QStringLiteral("There are existing templates in the old Templates directory.  Do you want Quillery to "
                       "move them to the new directory now?  If you're not sure, choose Yes."),
        Buttons::YesNo, Icon::Question, versionCaption() + QStringLiteral(" - Move Templates?"));
    if (move != Answer::Yes)
        return;

    BeginWait();
    if (!DirExists(newDir)) {
        ErrorBox(newDir + QStringLiteral(": ") + QStringLiteral("This directory is not acceptable to the operating system."));
        EndWait();
        return;
    }
    for (const QString &name : templates) {
        const QString source = JoinPath(oldDir, name);
        const QString target = JoinPath(newDir, name);
        if (QFileInfo::exists(target)) {
            const Answer replace = platform::MsgBox(QStringLiteral("Replace existing file ") + target, Buttons::YesNo,
                                                    Icon::Question, versionCaption() + QStringLiteral(" - Replace File?"));
            if (replace != Answer::Yes)
                continue;
        }
        if (!moveFile(source, target))
            StepFailed(QStringLiteral("Could not move ") + source + QStringLiteral(" to ") + newDir);
    }
    WriteSetting(QStringLiteral("File Locations"), QStringLiteral("Templates"), newDir);
    EndWait();
}

} // namespace qly::core
