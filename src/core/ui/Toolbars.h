#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

class QComboBox;
class QIcon;
class QMainWindow;
class QMenu;
class QToolBar;
class QWidgetAction;

namespace qly::core::ui {

class CommandTable;

// The toolbar bands of the main window: "File", "Text Property", "Insert",
// "Properties", "Style" and the browser tools. Each tool is the action of
// the command it runs, so menu and tool are one command. The layout (band
// positions, visibility, and the tools each band shows, in order) is kept in
// the user's "Quillery.tb".
class Toolbars : public QObject
{
    Q_OBJECT
public:
    Toolbars(QMainWindow &window, CommandTable &commands);

    QToolBar *band(const QString &name) const { return m_bands.value(name); }
    QStringList bandNames() const { return m_order; }
    // Every tool a band can show, and the ones it shows now, in order.
    QStringList allTools(const QString &band) const;
    QStringList shownTools(const QString &band) const { return m_shown.value(band); }
    void setShownTools(const QString &band, const QStringList &tools);
    // What the user sees of a tool: its command's caption, without the
    // mnemonic's "&", and its picture.
    QString toolCaption(const QString &tool) const;
    QIcon toolPicture(const QString &tool) const;
    QComboBox *styleCombo() const { return m_cmbApplyStyle; }

    // The check marks of the View menu follow the bands.
    void updateViewChecks();

    QByteArray saveLayout() const;
    bool loadLayout(const QByteArray &bytes);

private:
    void fill(const QString &band);
    void addTool(QToolBar *bar, const QString &tool);
    // The browser entries, "Preview in All" and the list's editor.
    QMenu *previewMenu();

    QMainWindow &m_window;
    CommandTable &m_commands;
    QHash<QString, QToolBar *> m_bands;
    QHash<QString, QStringList> m_shown;
    QStringList m_order;
    QComboBox *m_cmbApplyStyle = nullptr;
    QWidgetAction *m_styleAction = nullptr;
    QMenu *m_previewMenu = nullptr;
};

// A small picture for a tool: the desktop theme's where the icon naming
// specification has a fitting name and the theme holds it, else our own.
// An unknown tool gets a null icon (its button then shows its text).
QIcon toolIcon(const QString &tool);
// Our own picture of a tool, whatever the desktop theme.
QIcon ownToolIcon(const QString &tool);

} // namespace qly::core::ui
