#pragma once

#include <QDialog>
#include <QHash>
#include <QStringList>

class QComboBox;
class QListWidget;

namespace qly::core::ui {

class Toolbars;

// Shows, hides and reorders the tools of each toolbar band.
class frmCustomize : public QDialog
{
    Q_OBJECT
public:
    frmCustomize(Toolbars &toolbars, QWidget *parent = nullptr);

    // Applies the choice to the bands.
    void apply();

private:
    void showBand(const QString &band);
    void keepBand();
    void move(int delta);
    void reset();

    Toolbars &m_toolbars;
    QComboBox *m_band = nullptr;
    QListWidget *m_tools = nullptr;
    QString m_current;
    QHash<QString, QStringList> m_choice;   // shown tools per band, in order
};

} // namespace qly::core::ui
