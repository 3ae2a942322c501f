#pragma once

#include "generators/StyleClass.h"

#include <QList>
#include <QObject>
#include <QPointer>

class QComboBox;
class QMainWindow;

namespace qly::core::ui {
class Shell;
}

namespace qly::generators::ui {

// The toolbar's style combo (cmbApplyStyle): filled with the current
// page's classes when a document comes to the front and after the style
// dialogs; it follows the CLASS of the tag under the caret, and a choice
// applies its class to that tag.
class StyleComboBinder final : public QObject
{
    Q_OBJECT
public:
    static void install(core::ui::Shell &shell);
    static StyleComboBinder *instance();

    // FillStyleCombo for the current document.
    void refresh();
    // The caret stopped: select the row of the selection's class.
    void caretStopped();
    void apply(int row);
    QComboBox *combo() const;

private:
    explicit StyleComboBinder(QMainWindow *window);
    void watchDocuments();

    QMainWindow *m_window;
    QList<StyleChoice> m_entries;
    // What the entries were read from: the page, and its length then.
    const void *m_filledFor = nullptr;
    int m_filledLength = -1;
    bool m_connected = false;
};

} // namespace qly::generators::ui
