#include "generators/ui/frmTable.h"

#include "core/Feedback.h"
#include "core/ui/DialogFlags.h"
#include "core/ui/EscapeWatch.h"
#include "core/ui/Help.h"
#include "core/Paths.h"
#include "documents/Document.h"
#include "documents/DroppedFile.h"
#include "documents/ui/FileDrops.h"
#include "documents/Workspace.h"
#include "generators/TableFramePreview.h"
#include "generators/TableReader.h"
#include "generators/ui/PreviewPane.h"
#include "generators/ui/TableGridModel.h"
#include "generators/ui/UpDown.h"
#include "markup/Links.h"
#include "markup/TagPrimitives.h"
#include "platform/HTMLEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QTableView>

namespace qly::generators::ui {

namespace {

const char *const kLabels[TableModel::FieldCount] = {"Caption", "Border Width", "Columns", "Rows", "Heading Cols",
                                                     "Heading Rows", "Height", "Width", "Cell Padding",
                                                     "Cell Spacing"};

} // namespace

frmTable::frmTable(QWidget *parent, bool livePreview) : QDialog(parent, core::ui::kDialogFlags)
{
    setWindowTitle(QStringLiteral("Table Editor"));
    setObjectName(QStringLiteral("frmTable"));

    m_gridModel = new TableGridModel(m_model, this);
    m_grid = new QTableView(this);
    m_grid->setObjectName(QStringLiteral("grdTable"));
    m_grid->setModel(m_gridModel);
    m_grid->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked
                            | QAbstractItemView::EditKeyPressed);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    m_grid->installEventFilter(this);
    m_grid->viewport()->installEventFilter(this);
    documents::ui::AcceptFileDrops(m_grid->viewport(), [this](const QString &path) {
        dropFile(path, m_grid->indexAt(m_grid->viewport()->mapFromGlobal(QCursor::pos())));
    });
    connect(m_gridModel, &TableGridModel::cellEdited, this, [this] { m_preview->changed(); });
    connect(m_grid->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { m_model.moveTo(current.row(), current.column()); });

    // The fields with their spinners.
    auto *fields = new QGridLayout;
    fields->setVerticalSpacing(3);
    for (int i = 0; i < TableModel::FieldCount; ++i) {
        auto *label = new QLabel(QLatin1String(kLabels[i]) + QLatin1Char(':'), this);
        m_txtTable[i] = new QLineEdit(this);
        m_txtTable[i]->setObjectName(QStringLiteral("txtTable%1").arg(i));
        label->setBuddy(m_txtTable[i]);
        const int row = i == 0 ? 0 : i + 1;
        fields->addWidget(label, row, 0);
        fields->addWidget(m_txtTable[i], row, 1, 1, i == 0 ? 2 : 1);
        connect(m_txtTable[i], &QLineEdit::textEdited, this, [this, i] { txtTable_Change(i); });
        if (i == 0)
            continue;
        m_udTxt[i] = new UpDown(i == 1 ? 0 : 1, i == 1 ? 10 : 1000, this);
        fields->addWidget(m_udTxt[i], row, 2);
        connect(m_udTxt[i], &UpDown::valueChanged, this, [this, i](int value) {
            m_txtTable[i]->setText(QString::number(value));
            txtTable_Change(i);
        });
    }
    m_optCaption[0] = new QRadioButton(QStringLiteral("&Top"), this);
    m_optCaption[1] = new QRadioButton(QStringLiteral("&Bottom"), this);
    m_optCaption[0]->setChecked(true);
    auto *place = new QHBoxLayout;
    place->addWidget(m_optCaption[0]);
    place->addWidget(m_optCaption[1]);
    fields->addLayout(place, 1, 1, 1, 2);
    connect(m_optCaption[1], &QRadioButton::toggled, this, [this](bool bottom) {
        m_model.setCaptionAtBottom(bottom);
        m_preview->changed();
    });
    m_txtLines = new QLineEdit(QStringLiteral("1"), this);
    m_upDown1 = new UpDown(0, 50, this);
    m_upDown1->setValue(1);
    fields->addWidget(new QLabel(QStringLiteral("Lines Per Row:"), this), TableModel::FieldCount + 1, 0);
    fields->addWidget(m_txtLines, TableModel::FieldCount + 1, 1);
    fields->addWidget(m_upDown1, TableModel::FieldCount + 1, 2);
    connect(m_txtLines, &QLineEdit::textEdited, this, [this] { txtLines_Change(); });
    connect(m_upDown1, &UpDown::valueChanged, this, [this](int value) {
        m_txtLines->setText(QString::number(value));
        txtLines_Change();
    });

    // Rows and columns put in and taken out at the cursor.
    auto *shape = new QGridLayout;
    const struct {
        const char *caption;
        void (TableModel::*change)(int);
        bool rows;
    } shapes[] = {{"Insert &Row", &TableModel::insertRow, true},
                  {"Delete R&ow", &TableModel::removeRow, true},
                  {"Insert Co&lumn", &TableModel::insertCol, false},
                  {"Delete Col&umn", &TableModel::removeCol, false}};
    for (int i = 0; i < 4; ++i) {
        auto *button = new QPushButton(QLatin1String(shapes[i].caption), this);
        button->setAutoDefault(false);
        shape->addWidget(button, i / 2, i % 2);
        const auto s = shapes[i];
        connect(button, &QPushButton::clicked, this, [this, s] { changeShape(s.change, s.rows); });
    }

    auto *side = new QVBoxLayout;
    side->addLayout(fields);
    side->addLayout(shape);
    side->addStretch(1);

    auto *top = new QWidget(this);
    auto *topLayout = new QHBoxLayout(top);
    topLayout->setContentsMargins(0, 0, 0, 0);
    topLayout->addWidget(m_grid, 1);
    topLayout->addWidget(scrolledPanel(side, this));

    m_preview = new PreviewPane([this] { return TablePreviewPage(m_model.BuildTable()); }, this);
    auto *splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(top);
    splitter->addWidget(m_preview);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);

    auto *buttons = new QHBoxLayout;
    const char *const captions[] = {"OK", "Cancel", "&Help", "&Preview"};
    buttons->addStretch(1);
    for (int i = 0; i < 4; ++i) {
        auto *button = new QPushButton(QLatin1String(captions[i]), this);
        button->setObjectName(QStringLiteral("cmdOptions%1").arg(i));
        button->setAutoDefault(i == 0);
        button->setDefault(i == 0);
        buttons->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, i] { cmdOptions_Click(i); });
    }

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(buttons);
    fitToScreen(this, QSize(940, 800));
    splitter->setSizes({height() * 2 / 3, height() / 3});

    // As the dialog opens: the fields at their defaults, one line a row,
    // then whatever the selection holds.
    m_oneLine = m_grid->verticalHeader()->defaultSectionSize();
    LoadTableFromSelection();
    showModel();
    m_preview->setLive(livePreview);
}

void frmTable::showFor(QWidget *parent)
{
    frmTable dialog(parent);
    dialog.exec();
}

void frmTable::LoadTableFromSelection()
{
    documents::Document *doc = documents::Workspace::CurrentDocument();
    if (!doc)
        return;
    const QString selection = doc->txtDoc().SelText();
    core::ui::EscapeWatch escape;
    core::BeginWait();
    generators::LoadTableFromSelection(m_model, selection, [&escape] {
        core::DoEvents();
        return escape.pressed();
    });
    core::EndWait();
    if (ExtractTableText(selection).isEmpty())
        findChild<QPushButton *>(QStringLiteral("cmdOptions0"))->setFocus();
}

// The model's fields, grid and bands as they now stand.
void frmTable::showModel()
{
    m_showing = true;
    for (int i = 0; i < TableModel::FieldCount; ++i) {
        if (m_txtTable[i]->text() != m_model.field(i))
            m_txtTable[i]->setText(m_model.field(i));
        if (m_udTxt[i])
            m_udTxt[i]->setValue(m_model.fieldValue(i));
    }
    m_optCaption[m_model.captionAtBottom() ? 1 : 0]->setChecked(true);
    m_showing = false;
    gridChanged();
}

void frmTable::gridChanged()
{
    m_gridModel->reload();
    SetTableCellWidth();
    m_grid->setCurrentIndex(m_gridModel->index(m_model.row(), m_model.col()));
    m_preview->changed();
}

void frmTable::txtTable_Change(int index)
{
    if (m_showing)
        return;
    const int rows = m_model.rowCount();
    const int cols = m_model.colCount();
    m_model.setField(index, m_txtTable[index]->text());
    if (m_udTxt[index])
        m_udTxt[index]->setValue(m_model.fieldValue(index));
    // A heading count at the size is rewritten by the model.
    if (m_model.field(index) != m_txtTable[index]->text())
        m_txtTable[index]->setText(m_model.field(index));
    if (rows != m_model.rowCount() || cols != m_model.colCount() || index == TableModel::HeadingCols
        || index == TableModel::HeadingRows)
        gridChanged();
    else
        m_preview->changed();
}

void frmTable::txtLines_Change()
{
    const int lines = NumericValue(m_txtLines->text());
    m_upDown1->setValue(lines);
    if (lines > 0)
        m_grid->verticalHeader()->setDefaultSectionSize(lines * m_oneLine);
}

void frmTable::SetTableCellWidth()
{
    QHeaderView *header = m_grid->horizontalHeader();
    const int cols = m_model.colCount();
    const int width = std::max(header->minimumSectionSize(), m_grid->viewport()->width() / std::max(cols, 1));
    header->setDefaultSectionSize(width);
    for (int c = 0; c < cols; ++c)
        header->resizeSection(c, width);
}

void frmTable::changeShape(void (TableModel::*change)(int), bool rows)
{
    const QModelIndex at = m_grid->currentIndex();
    (m_model.*change)(rows ? (at.isValid() ? at.row() : 0) : (at.isValid() ? at.column() : 0));
    showModel();
}

void frmTable::pasteCells()
{
    const QModelIndex at = m_grid->currentIndex();
    if (at.isValid())
        m_model.moveTo(at.row(), at.column());
    m_model.InsertText(QApplication::clipboard()->text(), false);
    showModel();
}

void frmTable::dropFile(const QString &path, const QModelIndex &at)
{
    const QModelIndex cell = at.isValid() ? at : m_grid->currentIndex();
    if (!cell.isValid())
        return;
    documents::Document *doc = documents::Workspace::CurrentDocument();
    const QString link = doc ? documents::DroppedFileLink(*doc, path)
                             : markup::PathToFileUrl(QFileInfo(path).absoluteFilePath());
    const QString text = documents::DroppedFileKind(path) == documents::DropKind::Image
                             ? QStringLiteral("<IMG SRC=\"") + link + QStringLiteral("\">")
                             : QStringLiteral("<A HREF=\"") + link + QStringLiteral("\">") + core::FileNameOf(path)
                                   + QStringLiteral("</A>");
    m_grid->setCurrentIndex(cell);
    m_gridModel->setData(cell, m_model.cell(cell.row(), cell.column()) + text, Qt::EditRole);
}

void frmTable::cmdOptions_Click(int index)
{
    switch (index) {
    case 0: {
        // A cell editor still open gives its text to the grid as it loses the focus.
        QWidget *focus = QApplication::focusWidget();
        if (focus && focus != m_grid && m_grid->isAncestorOf(focus))
            m_grid->setFocus();
        const QString table = m_model.BuildTable();
        m_tag = QStringLiteral("1");
        markup::InsertMarkup(table, QString(), true);
        if (documents::Document *doc = documents::Workspace::CurrentDocument())
            doc->txtDoc().SetFocus();
        accept();
        break;
    }
    case 1:
        m_tag = QStringLiteral("0");
        reject();
        break;
    case 2:
        core::ui::OpenHelp();
        break;
    case 3:
        if (!m_preview->live())
            m_preview->setLive(true);
        else
            m_preview->refreshNow();
        break;
    default:
        break;
    }
}

bool frmTable::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_grid->viewport() && event->type() == QEvent::Resize)
        SetTableCellWidth();
    if (watched != m_grid || (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride))
        return QDialog::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const QModelIndex at = m_grid->currentIndex();
    const bool ctrl = key->modifiers() == Qt::ControlModifier;
    // The grid's own clipboard keys go before the main window's shortcuts.
    if (event->type() == QEvent::ShortcutOverride) {
        if ((ctrl && (key->key() == Qt::Key_V || key->key() == Qt::Key_C || key->key() == Qt::Key_X))
            || (key->modifiers() == Qt::ShiftModifier && key->key() == Qt::Key_Insert)
            || key->key() == Qt::Key_Delete) {
            event->accept();
            return true;
        }
        return false;
    }
    if ((ctrl && key->key() == Qt::Key_V) || (key->modifiers() == Qt::ShiftModifier && key->key() == Qt::Key_Insert)) {
        pasteCells();
        return true;
    }
    if (ctrl && (key->key() == Qt::Key_C || key->key() == Qt::Key_X) && at.isValid()) {
        QApplication::clipboard()->setText(m_model.cell(at.row(), at.column()));
        if (key->key() == Qt::Key_C) {
            core::ShowStatus(QStringLiteral("Copied cell contents to clipboard"));
        } else {
            m_gridModel->setData(at, QString(), Qt::EditRole);
        }
        return true;
    }
    if ((key->key() == Qt::Key_Delete || key->key() == Qt::Key_Backspace) && at.isValid()) {
        QString text = m_model.cell(at.row(), at.column());
        if (key->key() == Qt::Key_Backspace)
            text.chop(1);
        else
            text.clear();
        m_gridModel->setData(at, text, Qt::EditRole);
        return true;
    }
    // Typing adds to the cell's text rather than replacing it.
    if (at.isValid() && !key->text().isEmpty() && key->text().at(0).isPrint()
        && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        m_grid->edit(at);
        if (auto *editor = m_grid->viewport()->findChild<QLineEdit *>()) {
            editor->deselect();
            editor->end(false);
            QKeyEvent typed(QEvent::KeyPress, key->key(), key->modifiers(), key->text());
            QCoreApplication::sendEvent(editor, &typed);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}


} // namespace qly::generators::ui
