#include "markup/ui/frmEditTags.h"

#include "core/Feedback.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace qly::markup::ui {

namespace {

enum Column { Name, Group, EndTag, Filters, Start, End, Description, ColumnCount };

} // namespace

frmEditTags::frmEditTags(const TagCatalogue &catalogue, const QString &file, const QString &custom,
                         QWidget *parent)
    : QDialog(parent)
    , m_file(file)
    , m_custom(custom)
{
    setObjectName(QStringLiteral("frmEditTags"));
    setWindowTitle(tr("Edit Tags"));
    resize(900, 560);
    auto *layout = new QVBoxLayout(this);
    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setObjectName(QStringLiteral("grdTags"));
    m_table->setHorizontalHeaderLabels({tr("Name"), tr("Group"), tr("End tag"), tr("Filters"), tr("Start text"),
                                        tr("End text"), tr("Description")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    for (const TagEntry &e : catalogue.entries())
        addRow(e);
    layout->addWidget(m_table, 1);

    auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    QPushButton *add = box->addButton(tr("&New"), QDialogButtonBox::ActionRole);
    add->setObjectName(QStringLiteral("btnNew"));
    QPushButton *remove = box->addButton(tr("&Delete"), QDialogButtonBox::ActionRole);
    remove->setObjectName(QStringLiteral("btnDelete"));
    connect(add, &QPushButton::clicked, this, [this] {
        TagEntry e;
        e.filters = {customFilterName()};
        addRow(e);
        m_table->setCurrentCell(m_table->rowCount() - 1, Name);
        m_table->editItem(m_table->item(m_table->rowCount() - 1, Name));
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        if (m_table->currentRow() >= 0)
            m_table->removeRow(m_table->currentRow());
    });
    connect(box, &QDialogButtonBox::accepted, this, &frmEditTags::accept);
    connect(box, &QDialogButtonBox::rejected, this, &frmEditTags::reject);
    layout->addWidget(box);
}

void frmEditTags::addRow(const TagEntry &e)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    const auto put = [&](int column, const QString &text) { m_table->setItem(row, column, new QTableWidgetItem(text)); };
    put(Name, e.name);
    put(Group, e.group);
    auto *end = new QTableWidgetItem;
    end->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    end->setCheckState(e.hasEndTag ? Qt::Checked : Qt::Unchecked);
    m_table->setItem(row, EndTag, end);
    put(Filters, e.filters.join(QStringLiteral(", ")));
    put(Start, e.startText);
    put(End, e.endText);
    put(Description, e.description);
}

QList<TagEntry> frmEditTags::entries() const
{
    QList<TagEntry> out;
    const auto text = [this](int row, int column) {
        const QTableWidgetItem *item = m_table->item(row, column);
        return item ? item->text() : QString();
    };
    for (int row = 0; row < m_table->rowCount(); ++row) {
        TagEntry e;
        e.name = text(row, Name).trimmed();
        if (e.name.isEmpty())
            continue;
        e.group = text(row, Group).trimmed();
        e.hasEndTag = m_table->item(row, EndTag) && m_table->item(row, EndTag)->checkState() == Qt::Checked;
        for (const QString &f : text(row, Filters).split(u',', Qt::SkipEmptyParts))
            e.filters << f.trimmed();
        e.startText = text(row, Start);
        e.endText = text(row, End);
        // A new tag with no texts gets the ordinary ones.
        if (e.startText.isEmpty()) {
            e.startText = u'<' + e.name + u'>';
            if (e.hasEndTag && e.endText.isEmpty())
                e.endText = QStringLiteral("</") + e.name + u'>';
        }
        e.description = text(row, Description);
        out << e;
    }
    return out;
}

void frmEditTags::accept()
{
    TagCatalogue catalogue;
    catalogue.setEntries(entries());
    const core::IoResult result = catalogue.save(m_file, m_custom);
    if (!result.ok()) {
        core::ErrorBox(tr("The tag list could not be saved: ") + result.message);
        return;
    }
    QDialog::accept();
}

} // namespace qly::markup::ui
