#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace qly::generators {

// The text effects dialog's fields and the <applet> text of the chosen
// effect. Numbers stay text as typed; colours are 0xRRGGBB.
class TextEffectsModel
{
public:
    TextEffectsModel();

    // "Bouncing", "Jumping", "Whip", "Scrolling", "Spread", "Wave",
    // "Spearmint", "Distemper": the tabs in order.
    static QStringList effects();
    static QStringList fontNames();
    static QStringList alignments();   // the list GetAlignment reads
    // The class file of an effect; "" for an unknown name.
    static QString className(const QString &effect);
    // The fields of the effect's own tab, in their parameter order, as
    // pairs of field name and caption.
    static QList<QPair<QString, QString>> effectFields(const QString &effect);

    QString effect = QStringLiteral("Bouncing");
    QString text = QStringLiteral("Enter Text Here");   // txtStringCenter
    QString fontName = QStringLiteral("Times New Roman");
    QString fontSize = QStringLiteral("24");
    bool bold = false;
    bool italic = false;
    unsigned foreground = 0x000000;
    unsigned background = 0xFFFFFF;
    QString speed = QStringLiteral("100");
    QString alignment = QStringLiteral("Middle");
    // The effects' own fields by name (txtStartpos, txtHorizBounce, ...).
    QMap<QString, QString> fields;
    bool popcorn = true;           // optYes of "Jumping"
    QString spearmintAlign;        // cmbAlign of "Spearmint"
    bool spearmintEat = false;     // chkSpearmint
    bool gradient = false;         // chkGradient
    QString minFont;               // txtMinFont
    // chkBorder, chkBorder3D and imgBorderColor. The applet's own text has no
    // border of its choosing (Spearmint's border lines are fixed); the
    // border shows in the fallback markup.
    bool border = false;
    bool border3D = false;
    unsigned borderColor = 0x000000;

    // frmTEAppSize
    QString width = QStringLiteral("600");
    QString height = QStringLiteral("100");
    QString horizontal = QStringLiteral("10");
    QString vertical = QStringLiteral("20");

    // The applet text. An empty text is first filled with the maker's text
    // (also in the field). With the applet fallback on, markup that today's
    // browsers show stands before the closing tag.
    QString CreateApplet();
    QString CreateApplet(bool fallback);

    QString GetAlignment() const;
    QString GetStyleType() const;
    // The preview page around the applet text.
    QString previewPage(const QString &applet) const;

private:
    QString params() const;
    QString textParams() const;
    QString field(const QString &name) const { return fields.value(name); }
};

// Colours as the applets read them: six hexadecimal digits, zero-padded.
QString HexColor(unsigned rgb);

} // namespace qly::generators
