#include "core/ui/frmCustomize.h"

#include "core/ui/DialogFlags.h"
#include "core/ui/Toolbars.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace qly::core::ui {

frmCustomize::frmCustomize(Toolbars &toolbars, QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
    , m_toolbars(toolbars)
{
    setObjectName(QStringLiteral("frmCustomize"));
    setWindowTitle(tr("Customize Toolbars"));
    auto *layout = new QVBoxLayout(this);
    m_band = new QComboBox(this);
    m_band->setObjectName(QStringLiteral("cmbBand"));
    m_band->addItems(toolbars.bandNames());
    layout->addWidget(m_band);

    auto *row = new QHBoxLayout;
    m_tools = new QListWidget(this);
    m_tools->setObjectName(QStringLiteral("lstTools"));
    row->addWidget(m_tools, 1);
    auto *buttons = new QVBoxLayout;
    auto addButton = [&](const char *name, const QString &text, auto slot) {
        auto *b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(name));
        connect(b, &QPushButton::clicked, this, slot);
        buttons->addWidget(b);
    };
    addButton("cmdUp", tr("Move &Up"), [this] { move(-1); });
    addButton("cmdDown", tr("Move &Down"), [this] { move(1); });
    addButton("cmdReset", tr("&Reset"), [this] { reset(); });
    buttons->addStretch();
    row->addLayout(buttons);
    layout->addLayout(row);

    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(box, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(box);

    for (const QString &band : toolbars.bandNames())
        m_choice.insert(band, toolbars.shownTools(band));
    connect(m_band, &QComboBox::currentTextChanged, this, &frmCustomize::showBand);
    showBand(m_band->currentText());
    // Room for a band's tools without scrolling at once.
    resize(sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 50, fontMetrics().height() * 26)));
}

void frmCustomize::showBand(const QString &band)
{
    keepBand();
    m_current = band;
    m_tools->clear();
    const QStringList shown = m_choice.value(band);
    QStringList order = shown;
    for (const QString &tool : m_toolbars.allTools(band)) {
        if (!order.contains(tool))
            order << tool;
    }
    for (const QString &tool : order) {
        auto *item = new QListWidgetItem(m_toolbars.toolPicture(tool), m_toolbars.toolCaption(tool), m_tools);
        item->setData(Qt::UserRole, tool);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(shown.contains(tool) ? Qt::Checked : Qt::Unchecked);
    }
}

void frmCustomize::keepBand()
{
    if (m_current.isEmpty())
        return;
    QStringList shown;
    for (int i = 0; i < m_tools->count(); ++i) {
        if (m_tools->item(i)->checkState() == Qt::Checked)
            shown << m_tools->item(i)->data(Qt::UserRole).toString();
    }
    m_choice.insert(m_current, shown);
}

void frmCustomize::move(int delta)
{
    const int row = m_tools->currentRow();
    const int to = row + delta;
    if (row < 0 || to < 0 || to >= m_tools->count())
        return;
    QListWidgetItem *item = m_tools->takeItem(row);
    m_tools->insertItem(to, item);
    m_tools->setCurrentRow(to);
}

void frmCustomize::reset()
{
    m_choice.insert(m_current, m_toolbars.allTools(m_current));
    const QString band = m_current;
    m_current.clear();
    showBand(band);
}

void frmCustomize::apply()
{
    keepBand();
    for (auto it = m_choice.cbegin(); it != m_choice.cend(); ++it)
        m_toolbars.setShownTools(it.key(), it.value());
}

} // namespace qly::core::ui
