#include "tagdialogs/ui/frmProperties.h"

#include "tagdialogs/PropertiesModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QVBoxLayout>

namespace qly::tagdialogs::ui {

namespace {

QString S(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

frmProperties::frmProperties(QWidget *parent)
    : TagDialog(std::make_unique<PropertiesModel>(), S("Document Properties"), parent)
{
    auto *layout = new QVBoxLayout;
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(S("tabProperties"));

    auto *general = new QWidget(m_tabs);
    auto *g = new QFormLayout(general);
    text(g, S("&Title:"), S("title"), "txtTitle");
    text(g, S("&Base address:"), S("base"), "txtBase");
    combo(g, S("Base ta&rget:"), S("target"), "cmbTarget",
          {QString(), S("_blank"), S("_top"), S("_parent"), S("_self")}, true);
    m_showMeta = check(S("Sho&w META tags"), S("showmeta"), "chkShowMeta");
    g->addRow(QString(), m_showMeta);
    m_blocks = new QPlainTextEdit(general);
    m_blocks->setObjectName(S("txtScripts"));
    m_blocks->setReadOnly(true);
    m_blocks->setTabChangesFocus(true);
    m_blocks->setMaximumHeight(90);
    g->addRow(S("&Scripts and styles:"), m_blocks);
    m_tabs->addTab(general, S("&General"));

    m_metaPage = new QWidget(m_tabs);
    auto *m = new QFormLayout(m_metaPage);
    text(m, S("&Author:"), S("author"), "txtAuthor");
    text(m, S("&Description:"), S("description"), "txtDescription");
    text(m, S("&Keywords:"), S("keywords"), "txtKeywords");
    combo(m, S("D&istribution:"), S("distribution"), "cmbDistribution", {QString(), S("global"), S("local")}, false);
    text(m, S("Refresh de&lay (seconds):"), S("refreshdelay"), "txtDelay");
    text(m, S("Refresh &URL:"), S("refreshurl"), "txtRefreshURL");
    m_tabs->addTab(m_metaPage, S("&META"));

    auto *body = new QWidget(m_tabs);
    auto *b = new QFormLayout(body);
    file(b, S("Background &image:"), S("background"), "cmbBackground",
         S("Pictures (*.gif *.jpg *.jpeg *.png *.webp *.svg)|*.gif;*.jpg;*.jpeg;*.png;*.webp;*.svg|All Files (*.*)|*.*"),
         S("Background Graphics"), S("Images"));
    b->addRow(QString(), check(S("&Fixed background (does not scroll)"), S("fixed"), "chkFixed"));
    colour(b, S("Backgrou&nd colour:"), S("bgcolor"), "txtBgColor");
    colour(b, S("&Text colour:"), S("text"), "txtTextColor");
    colour(b, S("&Link colour:"), S("link"), "txtLinkColor");
    colour(b, S("&Visited link colour:"), S("vlink"), "txtVLinkColor");
    colour(b, S("&Active link colour:"), S("alink"), "txtALinkColor");
    m_tabs->addTab(body, S("B&ody"));

    layout->addWidget(m_tabs);
    finish(layout);
}

void frmProperties::showTab(Tab tab)
{
    m_tabs->setCurrentIndex(int(tab));
}

void frmProperties::loaded()
{
    m_blocks->setPlainText(static_cast<const PropertiesModel &>(model()).headBlocks().join(S("\n")));
}

void frmProperties::changed()
{
    TagDialog::changed();
    m_tabs->setTabVisible(Meta, m_showMeta->isChecked());
}

} // namespace qly::tagdialogs::ui
