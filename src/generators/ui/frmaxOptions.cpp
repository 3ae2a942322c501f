#include "generators/ui/frmaxOptions.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace qly::generators::ui {

frmaxOptions::frmaxOptions(const QStringList &sample, QWidget *parent)
    : FieldsDialog(QStringLiteral("frmaxOptions"), QStringLiteral("ActiveX Options"), parent)
    , m_sample(sample)
{
    const AxTagOptions o = AxTagOptions::read();
    auto group = [this](const QString &label) {
        auto *box = new QWidget(this);
        auto *row = new QHBoxLayout(box);
        row->setContentsMargins(0, 0, 0, 0);
        form()->addRow(label, box);
        return box;
    };
    QWidget *id = group(QStringLiteral("Class attribute:"));
    m_optClassID = radio(QStringLiteral("optID0"), QStringLiteral("ClassID"), o.classId, id);
    m_optProgID = radio(QStringLiteral("optID1"), QStringLiteral("ProgID"), !o.classId, id);
    QWidget *tag = group(QStringLiteral("Tag:"));
    m_optInsert = radio(QStringLiteral("optTag0"), QStringLiteral("INSERT"), o.tag == QLatin1String("INSERT"), tag);
    m_optObject = radio(QStringLiteral("optTag1"), QStringLiteral("OBJECT"), o.tag != QLatin1String("INSERT"), tag);
    QWidget *tagCase = group(QStringLiteral("Case:"));
    m_optMixed = radio(QStringLiteral("optCase0"), QStringLiteral("Mixed"), o.tagCase == QLatin1String("Mixed"), tagCase);
    m_optCaps = radio(QStringLiteral("optCase1"), QStringLiteral("CAPS"), o.tagCase == QLatin1String("CAPS"), tagCase);
    m_optLower = radio(QStringLiteral("optCase2"), QStringLiteral("lower"), o.tagCase == QLatin1String("lower"), tagCase);
    QWidget *lines = group(QStringLiteral("Lines:"));
    m_optSingle = radio(QStringLiteral("optLine0"), QStringLiteral("Single"), !o.multiLine, lines);
    m_optMulti = radio(QStringLiteral("optLine1"), QStringLiteral("Multi"), o.multiLine, lines);
    m_txtWidth = addLine(QStringLiteral("txtWidth"), QStringLiteral("Default width:"));
    m_txtWidth->setText(o.width);
    m_txtHeight = addLine(QStringLiteral("txtHeight"), QStringLiteral("Default height:"));
    m_txtHeight->setText(o.height);
    m_chkCode = addCheck(QStringLiteral("chkCode"), QStringLiteral("&Include CodeBase :"));
    m_chkCode->setChecked(o.includeCode);
    m_txtCode = addLine(QStringLiteral("txtCode"), QStringLiteral("CodeBase:"));
    m_txtCode->setText(o.code);
    m_txtPreview = addText(QStringLiteral("txtPreview"), QStringLiteral("Sample:"));
    m_txtPreview->setReadOnly(true);
    for (QWidget *box : {id, tag, tagCase, lines})
        static_cast<QHBoxLayout *>(box->layout())->addStretch();
    m_txtPreview->setMinimumWidth(fontMetrics().averageCharWidth() * 64);
    for (QRadioButton *r : findChildren<QRadioButton *>())
        connect(r, &QRadioButton::toggled, this, &frmaxOptions::showSample);
    for (QLineEdit *e : {m_txtWidth, m_txtHeight, m_txtCode})
        connect(e, &QLineEdit::textChanged, this, &frmaxOptions::showSample);
    connect(m_chkCode, &QCheckBox::toggled, this, &frmaxOptions::showSample);
    showSample();
}

QRadioButton *frmaxOptions::radio(const QString &name, const QString &text, bool on, QWidget *box)
{
    auto *r = new QRadioButton(text, box);
    r->setObjectName(name);
    r->setChecked(on);
    box->layout()->addWidget(r);
    return r;
}

AxTagOptions frmaxOptions::options() const
{
    AxTagOptions o;
    o.classId = m_optClassID->isChecked();
    o.tag = m_optInsert->isChecked() ? QStringLiteral("INSERT") : QStringLiteral("OBJECT");
    o.tagCase = m_optCaps->isChecked() ? QStringLiteral("CAPS") : m_optLower->isChecked() ? QStringLiteral("lower")
                                                                                          : QStringLiteral("Mixed");
    o.multiLine = m_optMulti->isChecked();
    o.width = m_txtWidth->text();
    o.height = m_txtHeight->text();
    o.includeCode = m_chkCode->isChecked();
    o.code = m_txtCode->text();
    return o;
}

void frmaxOptions::showSample()
{
    if (m_sample.size() < 3) {
        m_txtPreview->setPlainText(QStringLiteral("No controls registered."));
        return;
    }
    QString id = m_sample.at(2);
    id.remove(u' ');
    m_txtPreview->setPlainText(BuildObjTag(options(), id, m_sample.at(1), m_sample.at(0), {}));
}

bool frmaxOptions::confirm()
{
    options().write();
    return true;
}

} // namespace qly::generators::ui
