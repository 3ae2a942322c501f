#include "documents/ui/PrintSetup.h"

#include "documents/ui/FileLifecycle.h"

#include <QPageLayout>
#include <QPageSetupDialog>
#include <QPrinter>

#include <optional>

namespace qly::documents::ui {

namespace {

struct Setup {
    QString printerName;
    std::optional<QPageLayout> layout;
};

Setup &setup()
{
    static Setup s;
    return s;
}

} // namespace

void ApplyPrintSetup(QPrinter &printer)
{
    if (!setup().printerName.isEmpty())
        printer.setPrinterName(setup().printerName);
    if (setup().layout)
        printer.setPageLayout(*setup().layout);
}

void KeepPrintSetup(const QPrinter &printer)
{
    setup().printerName = printer.printerName();
    setup().layout = printer.pageLayout();
}

bool ShowPrintSetup(QWidget *parent)
{
    QPrinter printer;
    ApplyPrintSetup(printer);
    QPageSetupDialog dialog(&printer, parent);
    dialog.setWindowTitle(QStringLiteral("Print Setup"));
    if (dialog.exec() != QDialog::Accepted)
        return false;
    KeepPrintSetup(printer);
    return true;
}

void mnuPrintSetup_Click(QWidget *parent)
{
    ShowPrintSetup(parent);
}

} // namespace qly::documents::ui
