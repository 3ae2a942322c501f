#include "generators/ui/frmFormImage.h"

#include "core/Settings.h"
#include "markup/Links.h"
#include "platform/Prompts.h"

#include <QLineEdit>
#include <QToolButton>

namespace qly::generators::ui {

frmFormImage::frmFormImage(QWidget *parent)
    : FieldsDialog(QStringLiteral("frmFormImage"), QStringLiteral("Image Submit Button"), parent)
    , m_txtURL(new QLineEdit(this))
{
    m_txtURL->setObjectName(QStringLiteral("txtURL"));
    auto *button = new QToolButton(this);
    button->setObjectName(QStringLiteral("imgAddURL"));
    button->setText(QStringLiteral("..."));
    addRowWithButton(QStringLiteral("Image URL:"), m_txtURL, button);
    connect(button, &QToolButton::clicked, this, &frmFormImage::browse);
}

void frmFormImage::browse()
{
    platform::FileRequest request;
    request.title = QStringLiteral("Quillery 4.01 - Select File");
    request.filter = QStringLiteral("GIFs (*.gif)|*.gif|JPEGs (*.jpg)|*.jpg|Icons (*.ico)|*.ico|Bitmaps (*.bmp)|*.bmp|"
                                    "PNG (*.png)|*.png|All Files (*.*)|*.*");
    request.directory = core::GetFileLocation(QStringLiteral("Graphics"));
    const platform::FileAnswer answer = platform::prompts().openFile(request);
    if (answer.accepted())
        m_txtURL->setText(markup::RelativeLink(answer.files.first()));
}

void frmFormImage::ClearFields()
{
    m_txtURL->clear();
}

void frmFormImage::setElement(const FormElement &e)
{
    m_txtURL->setText(e.caption);
}

FormElement frmFormImage::element() const
{
    FormElement e;
    e.kind = FormElement::Image;
    e.caption = m_txtURL->text();
    return e;
}

} // namespace qly::generators::ui
