#pragma once

#include "generators/StyleRecord.h"

#include <QDialog>
#include <functional>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;
class QWidget;

namespace qly::generators::ui {

// "Cascading Style Sheets": one style of the library on six pages (font,
// text, lists, box, background, borders) with its name, tag, class and
// description above them. Save writes the style's .qns file.
class frmCSSEditor final : public QDialog
{
    Q_OBJECT
public:
    explicit frmCSSEditor(QWidget *parent = nullptr);

    // Edits the library style `name`, or a new one when `name` is empty.
    // True when a style was saved.
    static bool edit(QWidget *parent, const QString &name);

    void Initialize(const StyleRecord &record);
    StyleRecord record() const;
    // Checks and writes the style (cmdOptions(0)); false when refused.
    bool SaveStyle();
    QTabWidget *pages() const { return m_pages; }
    bool changed() const { return m_changed; }

    void reject() override;

private:
    using Field = std::function<QString &(StyleRecord &)>;
    using Number = std::function<qint16 &(StyleRecord &)>;

    QWidget *fontPage();
    QWidget *textPage();
    QWidget *listPage();
    QWidget *boxPage();
    QWidget *backgroundPage();
    QWidget *borderPage();
    QLineEdit *text(const QString &name, Field field, bool digitsOnly = false);
    QComboBox *choice(const QString &name, const QStringList &items, Field field, bool editable = false);
    QComboBox *unit(const QString &name, Field field);
    // One unit for several values: shows the unit of the first value that
    // is set, and gives it to all of them.
    QComboBox *groupUnit(const QString &name, std::function<QString *(StyleRecord &)> units,
                         std::function<QString *(StyleRecord &)> values, int count);
    QCheckBox *flag(const QString &name, const QString &caption, Number field);
    QWidget *colourPicker(const QString &name, Number red, Number green, Number blue);
    QWidget *browseRow(QLineEdit *edit, const QString &name);
    void markChanged();
    void updateSample();

    std::vector<std::function<void(const StyleRecord &)>> m_show;
    std::vector<std::function<void(StyleRecord &)>> m_take;
    QTabWidget *m_pages = nullptr;
    QLineEdit *m_txtName = nullptr;
    QComboBox *m_cmbHTMLTag = nullptr;
    QLineEdit *m_txtClass = nullptr;
    QLabel *m_sample = nullptr;
    QComboBox *m_generic = nullptr;
    bool m_loading = false;
    bool m_changed = false;
    bool m_saved = false;
};

} // namespace qly::generators::ui
