#pragma once

#include "core/OptionsModel.h"

#include <QDialog>
#include <array>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;
class QToolButton;

namespace qly::publish::ui {
class AliasEditor;
}

namespace qly::app {

class frmMain;

// "Quillery Options": the eight tabs over core::OptionsModel. The widgets only
// show and edit the model's fields; OK commits the model, Cancel drops it.
class frmOptions : public QDialog
{
    Q_OBJECT
public:
    explicit frmOptions(QWidget *parent = nullptr);

    core::OptionsModel &model() { return m_model; }
    void showTab(core::OptionsTab tab);

public slots:
    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // One builder per tab (frmOptionsPages.cpp, frmOptionsFiles.cpp).
    QWidget *buildGeneral();
    QWidget *buildEditing();
    QWidget *buildColoring();
    QWidget *buildDisplay();
    QWidget *buildDirectories();
    QWidget *buildSpelling();
    QWidget *buildSaveStart();
    QWidget *buildBrowsers();
    QWidget *page(core::OptionsTab tab);
    // The check boxes of `tab`; with `section`, only those stored there.
    void addChecks(QBoxLayout *layout, core::OptionsTab tab, QLatin1String section = {});
    QComboBox *combo(const QString &name, const QStringList &items, bool editable);
    // "name(i)", the name of a control in an array of controls.
    static QString indexed(const char *control, int i);
    // A label, a field and an optional label after it, in one row.
    static QHBoxLayout *row(const QString &label, QWidget *field, const QString &after = {});
    void enterMovesOn(QWidget *widget);

    void showModel();
    void showColour(int index);
    void showBrowsers();
    void pickColour(int index);

    core::OptionsModel m_model;
    QTabWidget *m_tabs = nullptr;
    std::array<QCheckBox *, core::kOptionCheckCount> m_checks{};
    QComboBox *m_bigLetter = nullptr;
    QComboBox *m_anchor = nullptr;
    QComboBox *m_fontName = nullptr;
    QComboBox *m_fontSize = nullptr;
    QComboBox *m_docExt = nullptr;
    QComboBox *m_pubExt = nullptr;
    QLineEdit *m_autoSave = nullptr;
    QCheckBox *m_scoutCheck = nullptr;
    QLineEdit *m_scout = nullptr;
    std::array<QLineEdit *, core::kLocationCount> m_files{};
    std::array<QLineEdit *, 2> m_dictionaries{};
    std::array<QToolButton *, core::kColourCount> m_colours{};
    QGroupBox *m_colourFrame = nullptr;
    QListWidget *m_browsers = nullptr;
    QPushButton *m_deleteBrowser = nullptr;
    publish::ui::AliasEditor *m_aliases = nullptr;
};

// Tools, Options...: the dialog over the main window, opened on `tab`.
void ShowOptions(frmMain &main, core::OptionsTab tab = core::OptionsTab::General);

} // namespace qly::app
