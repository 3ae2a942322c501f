#pragma once

#include <QColor>
#include <QDialog>

class QPushButton;

namespace qly::generators::ui {

// "Client-Side Image Map Options": the colour of hotspots and of the
// selected one, kept in [ImageMap Options] as decimal colour numbers (red
// in the low byte).
class frmIMOptions final : public QDialog
{
    Q_OBJECT
public:
    explicit frmIMOptions(QWidget *parent = nullptr);

    // A configuration made just now gets the two defaults written.
    static void writeDefaultsToNewConfiguration();
    static QColor standardColour();
    static QColor selectedColour();
    // True when the colours were changed and stored.
    static bool edit(QWidget *parent);

    void accept() override;

private:
    void choose(QPushButton *button, QColor &colour);
    static void paint(QPushButton *button, const QColor &colour);

    QColor m_standard;
    QColor m_selected;
    QPushButton *m_picStandard = nullptr;
    QPushButton *m_picSelected = nullptr;
};

} // namespace qly::generators::ui
