#include "tagdialogs/ui/TagDialog.h"

#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/Help.h"
#include "core/ui/HistoryCombo.h"
#include "platform/Prompts.h"
#include "tagdialogs/TagText.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QToolButton>
#include <QVBoxLayout>

namespace qly::tagdialogs::ui {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

QString PickColour(QWidget *parent, const QString &current)
{
    const QList<QPair<QString, QString>> &named = NamedColors();
    for (int i = 0; i < named.size() && i < QColorDialog::customCount(); ++i)
        QColorDialog::setCustomColor(i, QColor(u'#' + named.at(i).second));
    const QString hex = ColorHex(current);
    QColorDialog dialog(hex.isEmpty() ? QColor(Qt::black) : QColor(hex), parent);
    dialog.setObjectName(S("dlgColor"));
    dialog.setWindowTitle(S("Color"));
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedColor().name().mid(1).toUpper();
}

TagDialog::TagDialog(std::unique_ptr<TagDialogModel> model, const QString &title, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
    , m_model(std::move(model))
{
    setObjectName(m_model->name());
    setWindowTitle(title);
}

void TagDialog::finish(QLayout *content)
{
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(content);
    m_notes = new QLabel(this);
    m_notes->setObjectName(S("lblNotes"));
    m_notes->setWordWrap(true);
    m_notes->setTextFormat(Qt::PlainText);   // notes quote markup such as <HEAD>
    m_notes->setStyleSheet(S("color: #8a5a00"));
    m_warnings = new QLabel(this);
    m_warnings->setObjectName(S("lblWarnings"));
    m_warnings->setWordWrap(true);
    m_warnings->setTextFormat(Qt::PlainText);
    m_warnings->setStyleSheet(S("color: #8a5a00"));
    layout->addWidget(m_notes);
    layout->addWidget(m_warnings);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(S("cmdOK"));
    m_ok->setDefault(true);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(S("cmdCancel"));
    core::ui::addHelpButton(buttons, this, S("cmdHelp"))->setText(S("&Help"));
    connect(buttons, &QDialogButtonBox::accepted, this, &TagDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TagDialog::reject);
    layout->addWidget(buttons);
}

void TagDialog::watch(QWidget *w)
{
    if (auto *e = qobject_cast<QLineEdit *>(w))
        connect(e, &QLineEdit::textChanged, this, [this] { if (!m_loading) changed(); });
    else if (auto *c = qobject_cast<QComboBox *>(w))
        connect(c, &QComboBox::currentTextChanged, this, [this] { if (!m_loading) changed(); });
    else if (auto *b = qobject_cast<QCheckBox *>(w))
        connect(b, &QCheckBox::toggled, this, [this] { if (!m_loading) changed(); });
    else if (auto *p = qobject_cast<QPlainTextEdit *>(w))
        connect(p, &QPlainTextEdit::textChanged, this, [this] { if (!m_loading) changed(); });
}

QLineEdit *TagDialog::text(QFormLayout *form, const QString &label, const QString &field, const char *objectName)
{
    auto *e = new QLineEdit(this);
    e->setObjectName(S(objectName));
    if (form)
        form->addRow(label, e);
    m_bindings << Binding{field, e};
    watch(e);
    return e;
}

QComboBox *TagDialog::combo(QFormLayout *form, const QString &label, const QString &field, const char *objectName,
                            const QStringList &items, bool editable, const QString &history)
{
    auto *c = new QComboBox(this);
    c->setObjectName(S(objectName));
    c->setEditable(editable);
    c->addItems(items);
    if (!history.isEmpty())
        core::ui::FillHistoryCombo(c, history);
    if (editable)
        c->setInsertPolicy(QComboBox::NoInsert);
    c->setMinimumContentsLength(24);
    c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    if (form)
        form->addRow(label, c);
    m_bindings << Binding{field, c};
    watch(c);
    return c;
}

QCheckBox *TagDialog::check(const QString &caption, const QString &field, const char *objectName)
{
    auto *b = new QCheckBox(caption, this);
    b->setObjectName(S(objectName));
    m_bindings << Binding{field, b};
    watch(b);
    return b;
}

QPlainTextEdit *TagDialog::lines(QFormLayout *form, const QString &label, const QString &field, const char *objectName)
{
    auto *p = new QPlainTextEdit(this);
    p->setObjectName(S(objectName));
    p->setTabChangesFocus(true);
    p->setLineWrapMode(QPlainTextEdit::NoWrap);
    if (form)
        form->addRow(label, p);
    m_bindings << Binding{field, p};
    watch(p);
    return p;
}

QLineEdit *TagDialog::colour(QFormLayout *form, const QString &label, const QString &field, const char *objectName)
{
    auto *row = new QHBoxLayout;
    auto *e = new QLineEdit(this);
    e->setObjectName(S(objectName));
    e->setValidator(new QRegularExpressionValidator(QRegularExpression(S("[0-9A-Fa-f]{0,6}")), e));
    e->setPlaceholderText(S("RRGGBB"));
    e->setMaxLength(6);
    auto *swatch = new QToolButton(this);
    swatch->setObjectName(S(objectName) + S("Pick"));
    swatch->setText(S("..."));
    swatch->setToolTip(S("Choose a colour"));
    const auto paint = [e, swatch] {
        const QString hex = ColorHex(e->text());
        const QColor c(hex);
        const bool dark = c.isValid() && c.lightness() < 128;
        swatch->setStyleSheet(hex.isEmpty() ? QString()
                                            : S("background: %1; color: %2").arg(hex, dark ? S("white") : S("black")));
    };
    connect(e, &QLineEdit::textChanged, swatch, paint);
    connect(swatch, &QToolButton::clicked, this, [this, e] {
        const QString picked = PickColour(this, e->text());
        if (!picked.isEmpty())
            e->setText(picked);
    });
    row->addWidget(e, 1);
    row->addWidget(swatch);
    if (form) {
        form->addRow(label, row);
        if (auto *l = qobject_cast<QLabel *>(form->labelForField(row)))
            l->setBuddy(e);
    }
    m_bindings << Binding{field, e};
    watch(e);
    return e;
}

QComboBox *TagDialog::file(QFormLayout *form, const QString &label, const QString &field, const char *objectName,
                           const QString &filter, const QString &location, const QString &history)
{
    auto *row = new QHBoxLayout;
    QComboBox *c = combo(nullptr, QString(), field, objectName, {}, true, history);
    auto *browse = new QPushButton(S("Browse..."), this);
    browse->setObjectName(S(objectName) + S("Browse"));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, [c, filter, location] {
        platform::FileRequest request;
        request.title = S("Quillery 4.01 - Select File");
        request.directory = core::GetFileLocation(location, true);
        request.filter = filter;
        const platform::FileAnswer answer = platform::prompts().openFile(request);
        if (answer.accepted())
            c->setEditText(answer.files.first());
    });
    row->addWidget(c, 1);
    row->addWidget(browse);
    if (form) {
        form->addRow(label, row);
        if (auto *l = qobject_cast<QLabel *>(form->labelForField(row)))
            l->setBuddy(c);
    }
    return c;
}

void TagDialog::showValue(const Binding &b)
{
    const QString v = m_model->value(b.field);
    if (auto *e = qobject_cast<QLineEdit *>(b.widget)) {
        e->setText(v);
    } else if (auto *c = qobject_cast<QComboBox *>(b.widget)) {
        if (c->isEditable()) {
            c->setEditText(v);
        } else {
            int i = c->findText(v, Qt::MatchFixedString);
            if (i < 0 && !v.isEmpty()) {
                c->addItem(v);
                i = c->count() - 1;
            }
            c->setCurrentIndex(qMax(0, i));
        }
    } else if (auto *k = qobject_cast<QCheckBox *>(b.widget)) {
        k->setChecked(v == QLatin1String("1"));
    } else if (auto *p = qobject_cast<QPlainTextEdit *>(b.widget)) {
        p->setPlainText(v);
    }
}

void TagDialog::load()
{
    m_model->open();
    m_loading = true;
    for (const Binding &b : std::as_const(m_bindings))
        showValue(b);
    m_loading = false;
    m_notes->setText(m_model->notes().join(u' '));
    m_notes->setVisible(!m_model->notes().isEmpty());
    loaded();
    changed();
}

void TagDialog::store()
{
    for (const Binding &b : std::as_const(m_bindings)) {
        if (auto *e = qobject_cast<QLineEdit *>(b.widget))
            m_model->setValue(b.field, e->text());
        else if (auto *c = qobject_cast<QComboBox *>(b.widget))
            m_model->setValue(b.field, c->currentText());
        else if (auto *k = qobject_cast<QCheckBox *>(b.widget))
            m_model->setFlag(b.field, k->isChecked());
        else if (auto *p = qobject_cast<QPlainTextEdit *>(b.widget))
            m_model->setValue(b.field, p->toPlainText());
    }
}

void TagDialog::changed()
{
    store();
    const QStringList w = m_model->warnings();
    m_warnings->setText(w.join(u' '));
    m_warnings->setVisible(!w.isEmpty());
}

void TagDialog::accept()
{
    store();
    if (m_model->accept())
        QDialog::accept();
}

} // namespace qly::tagdialogs::ui
