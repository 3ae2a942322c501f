#include "generators/ui/frmCSSEditor.h"

#include "core/Globals.h"
#include "core/Settings.h"
#include "core/ui/DialogFlags.h"
#include "generators/StyleLibrary.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <memory>

namespace qly::generators::ui {

namespace {

const QString kNone = QStringLiteral("[none]");

QString shown(const QString &value)
{
    return isSet(value) ? value : QString();
}

QString stored(const QString &value)
{
    const QString v = value.trimmed();
    return v.isEmpty() ? kNone : v;
}

QStringList commonTags()
{
    QStringList tags{kNone};
    for (const char *t : {"A", "ADDRESS", "B", "BLOCKQUOTE", "BODY", "CAPTION", "CITE", "CODE", "DD", "DIV", "DL",
                          "DT", "EM", "H1", "H2", "H3", "H4", "H5", "H6", "HR", "I", "IMG", "LI", "OL", "P", "PRE",
                          "SMALL", "SPAN", "STRONG", "TABLE", "TD", "TH", "TR", "UL"})
        tags << QString::fromLatin1(t);
    return tags;
}

QWidget *page(QWidget *parent, QLayout *layout)
{
    auto *w = new QWidget(parent);
    w->setLayout(layout);
    return w;
}

} // namespace

frmCSSEditor::frmCSSEditor(QWidget *parent)
    : QDialog(parent, core::ui::kDialogFlags)
{
    setObjectName(QStringLiteral("frmCSSEditor"));
    setWindowTitle(QStringLiteral("Cascading Style Sheets"));
    auto *layout = new QVBoxLayout(this);

    auto *head = new QGridLayout;
    m_txtName = text(QStringLiteral("txtName"), [](StyleRecord &r) -> QString & { return r.StyleName; });
    m_cmbHTMLTag = choice(QStringLiteral("cmbHTMLTag"), commonTags(),
                          [](StyleRecord &r) -> QString & { return r.HTMLTag; }, true);
    m_txtClass = text(QStringLiteral("txtClass"), [](StyleRecord &r) -> QString & { return r.ClassName; });
    QLineEdit *description =
        text(QStringLiteral("txtDescription"), [](StyleRecord &r) -> QString & { return r.Description; });
    auto labelled = [this, head](const QString &caption, QWidget *field, int row, int column) {
        auto *label = new QLabel(caption, this);
        label->setBuddy(field);
        head->addWidget(label, row, column);
        head->addWidget(field, row, column + 1);
    };
    labelled(QStringLiteral("Style &name:"), m_txtName, 0, 0);
    labelled(QStringLiteral("HTML &tag:"), m_cmbHTMLTag, 0, 2);
    labelled(QStringLiteral("&Class:"), m_txtClass, 1, 0);
    labelled(QStringLiteral("&Description:"), description, 1, 2);
    layout->addLayout(head);

    m_pages = new QTabWidget(this);
    m_pages->setObjectName(QStringLiteral("tabPages"));
    m_pages->addTab(fontPage(), QStringLiteral("&Font"));
    m_pages->addTab(textPage(), QStringLiteral("Te&xt"));
    m_pages->addTab(listPage(), QStringLiteral("&Lists"));
    m_pages->addTab(boxPage(), QStringLiteral("&Box"));
    m_pages->addTab(backgroundPage(), QStringLiteral("Back&ground"));
    m_pages->addTab(borderPage(), QStringLiteral("Bo&rders"));
    layout->addWidget(m_pages, 1);

    m_sample = new QLabel(QStringLiteral("AaBbYyZz - The quick brown fox"), this);
    m_sample->setObjectName(QStringLiteral("lblSample"));
    m_sample->setFrameShape(QFrame::StyledPanel);
    m_sample->setMinimumHeight(m_sample->fontMetrics().height() * 3);
    m_sample->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_sample);

    auto *buttons = new QDialogButtonBox(this);
    QPushButton *save = buttons->addButton(QStringLiteral("&Save"), QDialogButtonBox::AcceptRole);
    save->setObjectName(QStringLiteral("cmdOptions(0)"));
    QPushButton *close = buttons->addButton(QDialogButtonBox::Close);
    close->setObjectName(QStringLiteral("cmdOptions(1)"));
    connect(save, &QPushButton::clicked, this, [this] {
        if (SaveStyle())
            accept();
    });
    connect(close, &QPushButton::clicked, this, &frmCSSEditor::reject);
    layout->addWidget(buttons);
    Initialize(StyleRecord());
}

QLineEdit *frmCSSEditor::text(const QString &name, Field field, bool digitsOnly)
{
    auto *edit = new QLineEdit(this);
    edit->setObjectName(name);
    if (digitsOnly)
        edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
    m_show.push_back([edit, field](const StyleRecord &r) { edit->setText(shown(field(const_cast<StyleRecord &>(r)))); });
    m_take.push_back([edit, field](StyleRecord &r) { field(r) = stored(edit->text()); });
    connect(edit, &QLineEdit::textEdited, this, &frmCSSEditor::markChanged);
    return edit;
}

QComboBox *frmCSSEditor::choice(const QString &name, const QStringList &items, Field field, bool editable)
{
    auto *box = new QComboBox(this);
    box->setObjectName(name);
    box->addItems(items);
    box->setEditable(editable);
    m_show.push_back([box, field](const StyleRecord &r) {
        const QString v = field(const_cast<StyleRecord &>(r));
        const int i = box->findText(v, Qt::MatchFixedString);
        if (i >= 0)
            box->setCurrentIndex(i);
        else if (box->isEditable())
            box->setEditText(v);
        else
            box->setCurrentIndex(0);
    });
    m_take.push_back([box, field](StyleRecord &r) { field(r) = stored(box->currentText()); });
    connect(box, &QComboBox::currentTextChanged, this, &frmCSSEditor::markChanged);
    return box;
}

QComboBox *frmCSSEditor::unit(const QString &name, Field field)
{
    // An unset unit shows the first, "pt".
    return choice(name, styleUnits(), field);
}

QComboBox *frmCSSEditor::groupUnit(const QString &name, std::function<QString *(StyleRecord &)> units,
                                   std::function<QString *(StyleRecord &)> values, int count)
{
    auto *box = new QComboBox(this);
    box->setObjectName(name);
    box->addItems(styleUnits());
    m_show.push_back([=](const StyleRecord &cr) {
        auto &r = const_cast<StyleRecord &>(cr);
        int index = 0;
        for (int i = 0; i < count; ++i) {
            if (isSet(values(r)[i])) {
                index = std::max(0, box->findText(units(r)[i]));
                break;
            }
        }
        box->setCurrentIndex(index);
    });
    m_take.push_back([=](StyleRecord &r) {
        for (int i = 0; i < count; ++i)
            units(r)[i] = box->currentText();
    });
    connect(box, &QComboBox::currentTextChanged, this, &frmCSSEditor::markChanged);
    return box;
}

QCheckBox *frmCSSEditor::flag(const QString &name, const QString &caption, Number field)
{
    auto *box = new QCheckBox(caption, this);
    box->setObjectName(name);
    m_show.push_back([box, field](const StyleRecord &r) { box->setChecked(field(const_cast<StyleRecord &>(r)) != 0); });
    m_take.push_back([box, field](StyleRecord &r) { field(r) = box->isChecked() ? 1 : 0; });
    connect(box, &QCheckBox::toggled, this, &frmCSSEditor::markChanged);
    return box;
}

QWidget *frmCSSEditor::colourPicker(const QString &name, Number red, Number green, Number blue)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *button = new QPushButton(row);
    button->setObjectName(name);
    auto *clear = new QToolButton(row);
    clear->setText(QStringLiteral("None"));
    clear->setToolTip(QStringLiteral("No colour"));
    layout->addWidget(button);
    layout->addWidget(clear);
    layout->addStretch();
    auto colour = std::make_shared<QColor>();
    auto paint = [button, colour] {
        if (colour->isValid()) {
            QPixmap swatch(40, 14);
            swatch.fill(*colour);
            button->setIcon(QIcon(swatch));
            button->setText(colour->name().toUpper());
        } else {
            button->setIcon(QIcon());
            button->setText(QStringLiteral("(not set)"));
        }
    };
    m_show.push_back([=](const StyleRecord &cr) {
        auto &r = const_cast<StyleRecord &>(cr);
        *colour = red(r) < 0 ? QColor() : QColor(red(r) & 0xFF, green(r) & 0xFF, blue(r) & 0xFF);
        paint();
    });
    m_take.push_back([=](StyleRecord &r) {
        red(r) = colour->isValid() ? qint16(colour->red()) : qint16(-1);
        green(r) = colour->isValid() ? qint16(colour->green()) : qint16(-1);
        blue(r) = colour->isValid() ? qint16(colour->blue()) : qint16(-1);
    });
    connect(button, &QPushButton::clicked, this, [=] {
        const QColor c = QColorDialog::getColor(colour->isValid() ? *colour : Qt::black, this);
        if (!c.isValid())
            return;
        *colour = c;
        paint();
        markChanged();
    });
    connect(clear, &QToolButton::clicked, this, [=] {
        *colour = QColor();
        paint();
        markChanged();
    });
    return row;
}

QWidget *frmCSSEditor::browseRow(QLineEdit *edit, const QString &name)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit, 1);
    auto *browse = new QToolButton(row);
    browse->setObjectName(name);
    browse->setText(QStringLiteral("..."));
    layout->addWidget(browse);
    connect(browse, &QToolButton::clicked, this, [this, edit] {
        platform::FileRequest request;
        request.title = core::versionCaption() + QStringLiteral(" - Select Image File");
        request.directory = core::GetFileLocation(QStringLiteral("Graphics"));
        const bool jpegFirst = core::ReadSetting(QStringLiteral("Display"), QStringLiteral("Last Picture Type"))
                                   .compare(QStringLiteral("JPG"), Qt::CaseInsensitive) == 0;
        request.filter = jpegFirst ? QStringLiteral("JPEG (*.jpg)|*.jpg|GIF (*.gif)|*.gif|All Files (*.*)|*.*")
                                   : QStringLiteral("GIF (*.GIF)|*.gif|JPEG (*.JPG)|*.jpg|All Files (*.*)|*.*");
        const platform::FileAnswer answer = platform::prompts().openFile(request);
        if (!answer.accepted())
            return;
        const QString link = markup::RelativeLink(answer.files.first());
        edit->setText(link.isEmpty() ? answer.files.first() : link);
        markChanged();
    });
    return row;
}

QWidget *frmCSSEditor::fontPage()
{
    auto *form = new QFormLayout;
    auto *w = page(this, form);
    form->addRow(QStringLiteral("Font &family:"),
                 text(QStringLiteral("txtFont"), [](StyleRecord &r) -> QString & { return r.FontFamily; }));
    m_generic = choice(QStringLiteral("radGeneric"), QStringList{kNone} + genericFamilies(),
                       [](StyleRecord &r) -> QString & { return r.GenericFont; });
    form->addRow(QStringLiteral("&Generic family:"), m_generic);
    auto *size = new QHBoxLayout;
    size->addWidget(text(QStringLiteral("txtSize(0)"), [](StyleRecord &r) -> QString & { return r.FontSize; }, true));
    size->addWidget(unit(QStringLiteral("cmbExt(0)"), [](StyleRecord &r) -> QString & { return r.FontSizeUnit; }));
    form->addRow(QStringLiteral("Size:"), size);
    form->addRow(QStringLiteral("Colour:"),
                 colourPicker(QStringLiteral("cmdColor"), [](StyleRecord &r) -> qint16 & { return r.ColorR; },
                              [](StyleRecord &r) -> qint16 & { return r.ColorG; },
                              [](StyleRecord &r) -> qint16 & { return r.ColorB; }));
    auto *look = new QGridLayout;
    look->addWidget(flag(QStringLiteral("chkBold"), QStringLiteral("&Bold"), [](StyleRecord &r) -> qint16 & { return r.Bold; }), 0, 0);
    look->addWidget(flag(QStringLiteral("chkItalic"), QStringLiteral("&Italic"), [](StyleRecord &r) -> qint16 & { return r.Italic; }), 0, 1);
    look->addWidget(flag(QStringLiteral("chkUnderline"), QStringLiteral("&Underline"), [](StyleRecord &r) -> qint16 & { return r.Underline; }), 1, 0);
    look->addWidget(flag(QStringLiteral("chkOverline"), QStringLiteral("&Overline"), [](StyleRecord &r) -> qint16 & { return r.Overline; }), 1, 1);
    look->addWidget(flag(QStringLiteral("chkLineThrough"), QStringLiteral("Line &through"), [](StyleRecord &r) -> qint16 & { return r.LineThrough; }), 2, 0);
    look->addWidget(flag(QStringLiteral("chkBlink"), QStringLiteral("Blin&k"), [](StyleRecord &r) -> qint16 & { return r.Blink; }), 2, 1);
    form->addRow(QStringLiteral("Look:"), look);
    return w;
}

QWidget *frmCSSEditor::textPage()
{
    auto *form = new QFormLayout;
    auto *w = page(this, form);
    auto measure = [this](const QString &index, Field value, Field units) {
        auto *row = new QHBoxLayout;
        row->addWidget(text(QStringLiteral("txtSize(%1)").arg(index), value, true));
        row->addWidget(unit(QStringLiteral("cmbExt(%1)").arg(index), units));
        return row;
    };
    form->addRow(QStringLiteral("Line height:"),
                 measure(QStringLiteral("1"), [](StyleRecord &r) -> QString & { return r.LineHeight; },
                         [](StyleRecord &r) -> QString & { return r.LineHeightUnit; }));
    form->addRow(QStringLiteral("Indent:"),
                 measure(QStringLiteral("2"), [](StyleRecord &r) -> QString & { return r.TextIndent; },
                         [](StyleRecord &r) -> QString & { return r.TextIndentUnit; }));
    form->addRow(QStringLiteral("Letter spacing:"),
                 measure(QStringLiteral("3"), [](StyleRecord &r) -> QString & { return r.LetterSpacing; },
                         [](StyleRecord &r) -> QString & { return r.LetterSpacingUnit; }));
    form->addRow(QStringLiteral("Word spacing:"),
                 measure(QStringLiteral("4"), [](StyleRecord &r) -> QString & { return r.WordSpacing; },
                         [](StyleRecord &r) -> QString & { return r.WordSpacingUnit; }));
    form->addRow(QStringLiteral("&Alignment:"), choice(QStringLiteral("cmbAlign"), textAligns(),
                                                       [](StyleRecord &r) -> QString & { return r.TextAlign; }));
    form->addRow(QStringLiteral("&Case:"), choice(QStringLiteral("cmbCase"), textCases(),
                                                  [](StyleRecord &r) -> QString & { return r.TextCase; }));
    form->addRow(QStringLiteral("White &space:"), choice(QStringLiteral("cmbWhiteSpace"), whiteSpaces(),
                                                         [](StyleRecord &r) -> QString & { return r.WhiteSpace; }));
    form->addRow(QStringLiteral("&Pseudo element:"),
                 choice(QStringLiteral("cmbPseudo"), pseudoElements(),
                        [](StyleRecord &r) -> QString & { return r.PseudoElement; }));
    auto *link = new QComboBox(this);
    link->setObjectName(QStringLiteral("cmbLinkState"));
    link->addItems({kNone, QStringLiteral("Normal"), QStringLiteral("Visited"), QStringLiteral("Active")});
    m_show.push_back([link](const StyleRecord &r) { link->setCurrentIndex(r.LinkState >= 0 && r.LinkState <= 2 ? r.LinkState + 1 : 0); });
    m_take.push_back([link](StyleRecord &r) { r.LinkState = qint16(link->currentIndex() - 1); });
    connect(link, &QComboBox::currentIndexChanged, this, &frmCSSEditor::markChanged);
    form->addRow(QStringLiteral("Lin&k state:"), link);
    return w;
}

QWidget *frmCSSEditor::listPage()
{
    auto *form = new QFormLayout;
    auto *w = page(this, form);
    form->addRow(QStringLiteral("&Bullet:"), choice(QStringLiteral("cmbListStyle"), QStringList{kNone} + listStyles(),
                                                    [](StyleRecord &r) -> QString & { return r.ListStyle; }));
    form->addRow(QStringLiteral("&Position:"), choice(QStringLiteral("cmbListPosition"), listPositions(),
                                                      [](StyleRecord &r) -> QString & { return r.ListPosition; }));
    QLineEdit *image = text(QStringLiteral("cmbListURL"), [](StyleRecord &r) -> QString & { return r.ListImage; });
    form->addRow(QStringLiteral("Bullet picture:"), browseRow(image, QStringLiteral("cmd")));
    return w;
}

QWidget *frmCSSEditor::boxPage()
{
    auto *layout = new QVBoxLayout;
    auto *w = page(this, layout);
    auto *size = new QFormLayout;
    auto *sizeRow = new QHBoxLayout;
    sizeRow->addWidget(new QLabel(QStringLiteral("Width:"), this));
    sizeRow->addWidget(text(QStringLiteral("txtBoxSize(0)"), [](StyleRecord &r) -> QString & { return r.BoxSize[0]; }, true));
    sizeRow->addWidget(unit(QStringLiteral("cmbSizeExt(0)"), [](StyleRecord &r) -> QString & { return r.BoxSizeUnit[0]; }));
    sizeRow->addWidget(new QLabel(QStringLiteral("Height:"), this));
    sizeRow->addWidget(text(QStringLiteral("txtBoxSize(1)"), [](StyleRecord &r) -> QString & { return r.BoxSize[1]; }, true));
    sizeRow->addWidget(unit(QStringLiteral("cmbSizeExt(1)"), [](StyleRecord &r) -> QString & { return r.BoxSizeUnit[1]; }));
    size->addRow(QStringLiteral("Size:"), sizeRow);
    size->addRow(QStringLiteral("&Vertical align:"),
                 choice(QStringLiteral("cmbVAlign"), verticalAligns(),
                        [](StyleRecord &r) -> QString & { return r.VerticalAlign; }));
    layout->addLayout(size);

    const char *sides[4] = {"Top", "Right", "Bottom", "Left"};
    for (int group = 0; group < 2; ++group) {
        auto *box = new QGroupBox(group == 0 ? QStringLiteral("Margins") : QStringLiteral("Padding"), this);
        auto *grid = new QGridLayout(box);
        for (int i = 0; i < 4; ++i) {
            grid->addWidget(new QLabel(QString::fromLatin1(sides[i]) + QLatin1Char(':'), box), 0, 2 * i);
            Field value = group == 0 ? Field([i](StyleRecord &r) -> QString & { return r.Margin[i]; })
                                     : Field([i](StyleRecord &r) -> QString & { return r.Padding[i]; });
            grid->addWidget(text(QStringLiteral("%1(%2)").arg(group == 0 ? QStringLiteral("txtMargin")
                                                                          : QStringLiteral("txtPad")).arg(i),
                                 value, true),
                            0, 2 * i + 1);
        }
        // One unit for the four sides.
        QComboBox *units =
            groupUnit(group == 0 ? QStringLiteral("cmbMargExt") : QStringLiteral("cmbPadExt"),
                      [group](StyleRecord &r) { return group == 0 ? r.MarginUnit : r.PaddingUnit; },
                      [group](StyleRecord &r) { return group == 0 ? r.Margin : r.Padding; }, 4);
        grid->addWidget(units, 0, 8);
        layout->addWidget(box);
    }

    auto *flow = new QFormLayout;
    auto *flowRow = new QHBoxLayout;
    flowRow->addWidget(choice(QStringLiteral("cmbFlowSide"), flowSides(),
                              [](StyleRecord &r) -> QString & { return r.FlowSide; }));
    flowRow->addWidget(choice(QStringLiteral("cmbFlowWrap"), flowWraps(),
                              [](StyleRecord &r) -> QString & { return r.FlowWrap; }));
    flow->addRow(QStringLiteral("Float:"), flowRow);
    flow->addRow(QStringLiteral("C&lear:"), choice(QStringLiteral("cmbClear"), QStringList{kNone} + clearValues(),
                                                   [](StyleRecord &r) -> QString & { return r.Clear; }));
    layout->addLayout(flow);
    layout->addStretch();
    return w;
}

QWidget *frmCSSEditor::backgroundPage()
{
    auto *form = new QFormLayout;
    auto *w = page(this, form);
    form->addRow(QStringLiteral("Colour:"),
                 colourPicker(QStringLiteral("cmdBackColor"), [](StyleRecord &r) -> qint16 & { return r.BackR; },
                              [](StyleRecord &r) -> qint16 & { return r.BackG; },
                              [](StyleRecord &r) -> qint16 & { return r.BackB; }));
    QLineEdit *image = text(QStringLiteral("cmbBackURL"), [](StyleRecord &r) -> QString & { return r.BackImage; });
    form->addRow(QStringLiteral("Picture:"), browseRow(image, QStringLiteral("cmdBack")));
    auto *repeat = new QComboBox(this);
    repeat->setObjectName(QStringLiteral("optBgOptions"));
    repeat->addItems({QStringLiteral("Repeat"), QStringLiteral("No repeat"), QStringLiteral("Repeat horizontally"),
                      QStringLiteral("Repeat vertically"), QStringLiteral("Fixed")});
    m_show.push_back([repeat](const StyleRecord &r) { repeat->setCurrentIndex(r.BackRepeat >= 0 && r.BackRepeat <= 4 ? r.BackRepeat : 0); });
    m_take.push_back([repeat](StyleRecord &r) { r.BackRepeat = qint16(repeat->currentIndex()); });
    connect(repeat, &QComboBox::currentIndexChanged, this, &frmCSSEditor::markChanged);
    form->addRow(QStringLiteral("&Tiling:"), repeat);
    auto *pos = new QHBoxLayout;
    pos->addWidget(new QLabel(QStringLiteral("x"), this));
    pos->addWidget(text(QStringLiteral("txtBack(0)"), [](StyleRecord &r) -> QString & { return r.BackPos[0]; }, true));
    pos->addWidget(new QLabel(QStringLiteral("y"), this));
    pos->addWidget(text(QStringLiteral("txtBack(1)"), [](StyleRecord &r) -> QString & { return r.BackPos[1]; }, true));
    pos->addWidget(groupUnit(QStringLiteral("cmbBackExt"), [](StyleRecord &r) { return r.BackPosUnit; },
                             [](StyleRecord &r) { return r.BackPos; }, 2));
    form->addRow(QStringLiteral("Position:"), pos);
    return w;
}

QWidget *frmCSSEditor::borderPage()
{
    auto *grid = new QGridLayout;
    auto *w = page(this, grid);
    const char *sides[4] = {"Left", "Right", "Top", "Bottom"};
    grid->addWidget(new QLabel(QStringLiteral("Width"), this), 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Style"), this), 0, 2);
    for (int i = 0; i < 4; ++i) {
        grid->addWidget(new QLabel(QString::fromLatin1(sides[i]) + QLatin1Char(':'), this), i + 1, 0);
        grid->addWidget(choice(QStringLiteral("cmbBorderSize(%1)").arg(i), borderSizes(),
                               [i](StyleRecord &r) -> QString & { return r.BorderSize[i]; }),
                        i + 1, 1);
        grid->addWidget(choice(QStringLiteral("cmbBorderStyle(%1)").arg(i), borderStyles(),
                               [i](StyleRecord &r) -> QString & { return r.BorderStyle[i]; }),
                        i + 1, 2);
    }
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(3, 1);
    return w;
}

void frmCSSEditor::Initialize(const StyleRecord &record)
{
    m_loading = true;
    for (const auto &show : m_show)
        show(record);
    m_loading = false;
    m_changed = false;
    updateSample();
}

StyleRecord frmCSSEditor::record() const
{
    StyleRecord r;
    for (const auto &take : m_take)
        take(r);
    r.StyleName = m_txtName->text().trimmed();
    return r;
}

void frmCSSEditor::markChanged()
{
    if (m_loading)
        return;
    m_changed = true;
    updateSample();
}

void frmCSSEditor::updateSample()
{
    const StyleRecord r = record();
    QFont font = this->font();
    if (isSet(r.FontFamily))
        font.setFamily(r.FontFamily);
    if (isSet(r.FontSize) && (r.FontSizeUnit == QLatin1String("pt") || !isSet(r.FontSizeUnit)))
        font.setPointSizeF(qBound(4.0, r.FontSize.toDouble(), 72.0));
    else if (isSet(r.FontSize) && r.FontSizeUnit == QLatin1String("px"))
        font.setPixelSize(qBound(4, r.FontSize.toInt(), 96));
    font.setBold(r.Bold);
    font.setItalic(r.Italic);
    font.setUnderline(r.Underline);
    font.setOverline(r.Overline);
    font.setStrikeOut(r.LineThrough);
    m_sample->setFont(font);
    QPalette palette = m_sample->palette();
    palette.setColor(QPalette::WindowText, r.ColorR >= 0 ? QColor(r.ColorR & 0xFF, r.ColorG & 0xFF, r.ColorB & 0xFF)
                                                         : this->palette().color(QPalette::WindowText));
    if (r.BackR >= 0)
        palette.setColor(QPalette::Window, QColor(r.BackR & 0xFF, r.BackG & 0xFF, r.BackB & 0xFF));
    else
        palette.setColor(QPalette::Window, this->palette().color(QPalette::Window));
    m_sample->setAutoFillBackground(true);
    m_sample->setPalette(palette);
}

bool frmCSSEditor::SaveStyle()
{
    const StyleRecord r = record();
    const QString title = QStringLiteral("Save Style");
    if (r.StyleName.isEmpty()) {
        platform::MsgBox(QStringLiteral("You must enter a name to save a style"), platform::Buttons::Ok,
                         platform::Icon::Exclamation, title);
        m_txtName->setFocus();
        return false;
    }
    if (!isSet(r.HTMLTag) && !isSet(r.ClassName)) {
        platform::MsgBox(QStringLiteral("You must enter either an HTML tag or a class name to save a style"),
                         platform::Buttons::Ok, platform::Icon::Exclamation, title);
        return false;
    }
    QString error;
    if (!StyleLibrary::instance().WriteStyleFile(r, &error)) {
        platform::MsgBox(QStringLiteral("The style could not be saved: ") + error, platform::Buttons::Ok,
                         platform::Icon::Exclamation, title);
        return false;
    }
    m_changed = false;
    m_saved = true;
    return true;
}

void frmCSSEditor::reject()
{
    if (m_changed) {
        const platform::Answer a =
            platform::MsgBox(QStringLiteral("Save changes to Style?"), platform::Buttons::YesNoCancel,
                             platform::Icon::Question, QStringLiteral("Save Style"));
        if (a == platform::Answer::Cancel || (a == platform::Answer::Yes && !SaveStyle()))
            return;
    }
    if (m_saved)
        QDialog::accept();
    else
        QDialog::reject();
}

bool frmCSSEditor::edit(QWidget *parent, const QString &name)
{
    frmCSSEditor dialog(parent);
    if (!name.isEmpty())
        dialog.Initialize(StyleFromList(name));
    return dialog.exec() == QDialog::Accepted;
}

} // namespace qly::generators::ui
