#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace qly::generators::ui {

// The frame of the small generator dialogs of forms, scripts, channels and
// effects: rows of labelled fields over OK, Cancel and Help. Tag() is "1"
// after OK, "0" after Cancel, "" before the dialog was answered.
class FieldsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit FieldsDialog(const QString &objectName, const QString &title, QWidget *parent = nullptr);

    QString Tag() const { return m_tag; }
    // Shows the dialog modally; true after OK.
    bool ask();
    QSize sizeHint() const override;

signals:
    // The user chose a new colour on one of the colour buttons.
    void colorChosen(QPushButton *button);

protected:
    QLineEdit *addLine(const QString &name, const QString &label, bool numeric = false);
    QCheckBox *addCheck(const QString &name, const QString &label);
    QComboBox *addCombo(const QString &name, const QString &label, const QStringList &items, bool editable);
    QPlainTextEdit *addText(const QString &name, const QString &label);
    // A button that shows a colour and changes it through the colour dialog.
    QPushButton *addColor(const QString &name, const QString &label, unsigned rgb);
    // The same button without a row of its own.
    QPushButton *colorButton(const QString &name, unsigned rgb);
    static unsigned colorOf(const QPushButton *button);
    static void setColor(QPushButton *button, unsigned rgb);
    // The "Fallback for today's browsers" tick, bound to the stored option.
    QCheckBox *addFallbackCheck();
    // A row with a field and a "..." button beside it.
    void addRowWithButton(const QString &label, QWidget *field, QWidget *button);
    QFormLayout *form() const { return m_form; }
    // A widget between the rows and the buttons, by default taking the room
    // to spare.
    void addBelowFields(QWidget *widget, int stretch = 1);
    // Puts the rows in a panel that scrolls when the screen is too small for
    // them (large fonts, a doubled scale), and sizes the dialog to show them
    // whole where the screen allows, `preferredWidth` wide at least. Called
    // once, after the last row.
    void letFieldsScroll(int preferredWidth = 0);
    // Called before OK closes the dialog; false keeps it open.
    virtual bool confirm() { return true; }

private:
    QFormLayout *m_form = nullptr;
    QString m_tag;
};

} // namespace qly::generators::ui
