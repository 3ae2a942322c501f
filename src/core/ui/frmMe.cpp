#include "core/ui/frmMe.h"

#include "core/Globals.h"
#include "core/ui/DialogFlags.h"

#include <QMessageBox>

namespace qly::core::ui {

void frmMe(QWidget *parent)
{
    QMessageBox box(QMessageBox::Information, QStringLiteral("About Quillery"),
                    QStringLiteral("<h3>") + versionCaption()
                        + QStringLiteral("</h3><p>An editor for people who write HTML by hand.</p>"
                                         "<p>Built with Qt %1 and QScintilla.</p>")
                              .arg(QString::fromLatin1(qVersion())),
                    QMessageBox::Ok, parent, kDialogFlags);
    box.setTextFormat(Qt::RichText);
    box.exec();
}

} // namespace qly::core::ui
