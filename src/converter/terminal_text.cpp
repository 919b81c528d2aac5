#include "converter/terminal_text.h"

namespace {

bool needs_escape(uint code)
{
    if (code < 0x20 || (code >= 0x7f && code <= 0x9f)) {
        return true;
    }
    if (code == QChar::ReplacementCharacter || QChar::isNonCharacter(code)) {
        return true;
    }
    switch (QChar::category(code)) {
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString escape(uint code)
{
    switch (code) {
    case '\t':
        return QStringLiteral("\\t");
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    default:
        break;
    }
    return code <= 0xff ? QStringLiteral("\\x%1").arg(code, 2, 16, QLatin1Char('0'))
                        : QStringLiteral("\\u%1").arg(code, 4, 16, QLatin1Char('0'));
}

} // namespace

QString terminal_safe(const QString& text)
{
    QString result;
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        uint code = text.at(i).unicode();
        int length = 1;
        // A valid pair is one character; a lone half is a surrogate by category.
        if (text.at(i).isHighSurrogate() && i + 1 < text.size() &&
            text.at(i + 1).isLowSurrogate()) {
            code = QChar::surrogateToUcs4(text.at(i), text.at(i + 1));
            length = 2;
        }
        if (needs_escape(code)) {
            if (result.isNull()) {
                result.reserve(text.size() + 8);
            }
            result += text.midRef(copied, i - copied);
            result += escape(code);
            copied = i + length;
        }
        i += length - 1;
    }
    if (copied == 0) {
        return text;
    }
    result += text.midRef(copied);
    return result;
}
