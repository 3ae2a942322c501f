#pragma once

#include "tagdialogs/TagDialogModel.h"

#include <QDialog>
#include <memory>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QVBoxLayout;

namespace qly::tagdialogs::ui {

// The frame of every tag dialog: the model's fields bound to widgets by
// name, a line for what could not be read from the selection, one for what
// OK will write differently from what was typed, and OK, Cancel and Help.
// OK hands the fields to the model, which writes the text; a failed check
// keeps the dialog open.
class TagDialog : public QDialog
{
    Q_OBJECT
public:
    TagDialog(std::unique_ptr<TagDialogModel> model, const QString &title, QWidget *parent);

    TagDialogModel &model() const { return *m_model; }
    // Opens the model on the current document's selection and shows its fields.
    void load();
    // The widgets' values into the model.
    void store();

    void accept() override;

protected:
    // Builders: each adds a widget bound to a field of the model.
    QLineEdit *text(QFormLayout *form, const QString &label, const QString &field, const char *objectName);
    QComboBox *combo(QFormLayout *form, const QString &label, const QString &field, const char *objectName,
                     const QStringList &items, bool editable, const QString &history = {});
    QCheckBox *check(const QString &caption, const QString &field, const char *objectName);
    QPlainTextEdit *lines(QFormLayout *form, const QString &label, const QString &field, const char *objectName);
    // A colour as "RRGGBB" with a button that opens the colour dialog.
    QLineEdit *colour(QFormLayout *form, const QString &label, const QString &field, const char *objectName);
    // A file or address with a "Browse..." button; `filter` as the prompts take it.
    QComboBox *file(QFormLayout *form, const QString &label, const QString &field, const char *objectName,
                    const QString &filter, const QString &location, const QString &history = {});

    // Lays out the content above the message lines and the buttons; call once.
    void finish(QLayout *content);
    // Runs after load() has filled the widgets.
    virtual void loaded() {}
    // Runs when any field changes.
    virtual void changed();

    QPushButton *m_ok = nullptr;

private:
    struct Binding {
        QString field;
        QWidget *widget;
    };
    void showValue(const Binding &b);
    void watch(QWidget *w);

    std::unique_ptr<TagDialogModel> m_model;
    QList<Binding> m_bindings;
    QLabel *m_notes = nullptr;
    QLabel *m_warnings = nullptr;
    bool m_loading = false;
};

// Picks a colour with Qt's colour dialog, offering HTML's sixteen named
// colours as its custom colours. Returns "RRGGBB", or "" when cancelled.
QString PickColour(QWidget *parent, const QString &current);

} // namespace qly::tagdialogs::ui
