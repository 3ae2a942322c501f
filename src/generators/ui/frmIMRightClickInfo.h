#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;

namespace qly::generators::ui {

// "Client-Side Image Map Information": the map's name and, for a region,
// its URL and target, editable in place.
class frmIMRightClickInfo final : public QDialog
{
    Q_OBJECT
public:
    explicit frmIMRightClickInfo(QWidget *parent = nullptr);

    // For a region: all three fields. For the whole map (`url` null): the
    // name and a summary. True with the values written back on OK.
    static bool edit(QWidget *parent, QString &mapName, QString *url, QString *target, const QString &summary);

private:
    QLineEdit *m_txtMapName = nullptr;
    QLineEdit *m_txtURL = nullptr;
    QLineEdit *m_txtTarget = nullptr;
    QLabel *m_lblSummary = nullptr;
};

} // namespace qly::generators::ui
