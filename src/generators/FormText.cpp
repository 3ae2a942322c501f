#include "generators/FormText.h"

#include <QStringList>

namespace qly::generators {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// `before` and the quoted value, or nothing for an empty value.
QString quotedIf(const QString &before, const QString &value)
{
    return value.isEmpty() ? QString() : before + u'"' + value + u'"';
}

QString plainIf(const QString &before, const QString &value)
{
    return value.isEmpty() ? QString() : before + value;
}

} // namespace

QString FormCheckOrRadio(const QString &kind, const QString &caption, const QString &name,
                         const QString &value, bool checked)
{
    return QStringLiteral("<INPUT TYPE=\"") + kind.trimmed() + QStringLiteral("\" name = \"") + name.trimmed()
           + u'"' + quotedIf(QStringLiteral(" VALUE="), value.trimmed())
           + (checked ? QStringLiteral(" CHECKED>") : QStringLiteral(">")) + caption.trimmed()
           + QStringLiteral(" <BR>") + kCrLf;
}

QString FormCheckBox(const QString &caption, const QString &name, const QString &value, bool checked)
{
    return FormCheckOrRadio(QStringLiteral("CHECKBOX"), caption, name, value, checked);
}

QString FormRadio(const QString &caption, const QString &name, const QString &value, bool checked)
{
    return FormCheckOrRadio(QStringLiteral("RADIO"), caption, name, value, checked);
}

QString FormListBox(const QString &caption, const QString &name, const QString &value, const QString &items,
                    bool multiple)
{
    QString out = caption.trimmed() + QStringLiteral(" <SELECT ")
                  + (multiple ? QStringLiteral("MULTIPLE ") : QString())
                  + quotedIf(QStringLiteral(" NAME="), name.trimmed())
                  + quotedIf(QStringLiteral(" VALUE="), value.trimmed()) + u'>' + kCrLf;
    QString lines = items.trimmed();
    lines.replace(kCrLf, QStringLiteral("\n"));
    for (const QString &item : lines.split(u'\n')) {
        if (!item.isEmpty())
            out += QStringLiteral("<OPTION>") + item + kCrLf;
    }
    return out + QStringLiteral("</SELECT> <BR>") + kCrLf;
}

QString FormInput(const QString &caption, const QString &name, const QString &value, const QString &cols,
                  const QString &size, bool password, bool hidden)
{
    const QString kind = hidden ? QStringLiteral("HIDDEN") : password ? QStringLiteral("PASSWORD")
                                                                      : QStringLiteral("TEXT");
    return caption.trimmed() + QStringLiteral(" <INPUT TYPE=\"") + kind + QStringLiteral("\" name = \"")
           + name.trimmed() + u'"' + quotedIf(QStringLiteral(" VALUE="), value.trimmed())
           + quotedIf(QStringLiteral(" COLS="), cols.trimmed()) + plainIf(QStringLiteral(" SIZE="), size.trimmed())
           + QStringLiteral("> <BR>") + kCrLf;
}

QString FormTextArea(const QString &caption, const QString &name, const QString &value, const QString &cols,
                     const QString &size, const QString &rows)
{
    return caption.trimmed() + QStringLiteral(" <TEXTAREA name=\"") + name.trimmed() + u'"'
           + quotedIf(QStringLiteral(" VALUE="), value.trimmed())
           + quotedIf(QStringLiteral(" COLS="), cols.trimmed()) + plainIf(QStringLiteral(" SIZE="), size.trimmed())
           + quotedIf(QStringLiteral(" ROWS="), rows.trimmed()) + QStringLiteral("> <BR>") + kCrLf;
}

QString FormSubmit(const QString &caption)
{
    return QStringLiteral("<INPUT TYPE=\"SUBMIT\"") + quotedIf(QStringLiteral(" VALUE="), caption.trimmed())
           + u'>';
}

QString FormReset(const QString &caption)
{
    return QStringLiteral("<INPUT TYPE=\"RESET\"") + quotedIf(QStringLiteral(" VALUE="), caption.trimmed())
           + u'>';
}

QString FormFile(const QString &caption, const QString &name)
{
    return caption.trimmed() + QStringLiteral(" <INPUT TYPE=\"FILE\"")
           + quotedIf(QStringLiteral(" NAME="), name.trimmed()) + u'>';
}

QString FormImage(const QString &url)
{
    return QStringLiteral("<INPUT TYPE=\"IMAGE\"") + quotedIf(QStringLiteral(" VALUE="), url.trimmed()) + u'>';
}

} // namespace qly::generators
