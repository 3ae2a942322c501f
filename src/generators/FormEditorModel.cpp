#include "generators/FormEditorModel.h"

#include "generators/FormText.h"

#include <QStringList>
#include <algorithm>

namespace qly::generators {

QString FormElement::text() const
{
    const bool on = sub[2] == QLatin1String("Checked");
    switch (kind) {
    case CheckBox: return FormCheckBox(caption, sub[0], sub[1], on);
    case Radio: return FormRadio(caption, sub[0], sub[1], on);
    case TextField:
    case Hidden:
    case Password: return FormInput(caption, sub[0], sub[1], sub[2], sub[3], kind == Password, kind == Hidden);
    case TextArea: return FormTextArea(caption, sub[0], sub[1], sub[2], sub[3], sub[4]);
    case ListBox: return FormListBox(caption, sub[0], sub[1], sub[3], sub[2] == QLatin1String("Multiple"));
    case Submit: return FormSubmit(caption);
    case Reset: return FormReset(caption);
    case Image: return FormImage(caption);
    case File: return FormFile(caption, sub[0]);
    default: return {};
    }
}

QString FormElement::misc() const
{
    QStringList parts{kindName(kind)};
    auto add = [&parts](const char *label, const QString &value) {
        if (!value.isEmpty())
            parts << QString::fromLatin1(label) + value;
    };
    switch (kind) {
    case CheckBox:
    case Radio:
        add("value ", sub[1]);
        if (sub[2] == QLatin1String("Checked"))
            parts << QStringLiteral("checked");
        break;
    case TextField:
    case Hidden:
    case Password:
        add("value ", sub[1]);
        add("max ", sub[2]);
        add("size ", sub[3]);
        break;
    case TextArea:
        add("value ", sub[1]);
        add("cols ", sub[2]);
        add("max ", sub[3]);
        add("rows ", sub[4]);
        break;
    case ListBox: {
        QString items = sub[3];
        items.replace(QStringLiteral("\r\n"), QStringLiteral(", "));
        add("value ", sub[1]);
        if (sub[2] == QLatin1String("Multiple"))
            parts << QStringLiteral("multiple");
        add("", items);
        break;
    }
    default:
        break;
    }
    return parts.join(QStringLiteral(", "));
}

QString FormElement::kindName(int kind)
{
    switch (kind) {
    case CheckBox: return QStringLiteral("Check Box");
    case Radio: return QStringLiteral("Radio Button");
    case TextField: return QStringLiteral("Text Field");
    case TextArea: return QStringLiteral("Text Area");
    case Hidden: return QStringLiteral("Hidden Field");
    case Password: return QStringLiteral("Password");
    case ListBox: return QStringLiteral("List Box");
    case Submit: return QStringLiteral("Submit Button");
    case Reset: return QStringLiteral("Reset Button");
    case Image: return QStringLiteral("Image Submit");
    case File: return QStringLiteral("File");
    default: return {};
    }
}

QString FormEditorModel::generate() const
{
    const QString crLf = QStringLiteral("\r\n");
    QString out;
    if (toMail) {
        out = QStringLiteral("<FORM action=\"mailto:") + mailAddress + QStringLiteral("\" method=\"POST\">") + crLf;
    } else {
        out = QStringLiteral("<FORM action=\"") + url + QStringLiteral("\" method=\"")
              + (methodGet ? QStringLiteral("GET") : QStringLiteral("POST")) + QStringLiteral("\">") + crLf;
    }
    for (const FormElement &e : elements)
        out += e.text();
    return out + QStringLiteral("</FORM>") + crLf;
}

bool FormEditorModel::moveUp(int row)
{
    if (row <= 0 || row >= elements.size())
        return false;
    elements.swapItemsAt(row, row - 1);
    return true;
}

bool FormEditorModel::moveDown(int row)
{
    if (row < 0 || row + 1 >= elements.size())
        return false;
    elements.swapItemsAt(row, row + 1);
    return true;
}

void FormEditorModel::remove(QList<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    for (int row : rows) {
        if (row >= 0 && row < elements.size())
            elements.removeAt(row);
    }
}

} // namespace qly::generators
