#include "preset/xml_cost_guard.h"

#include <QDebug>
#include <QTextCodec>
#include <QTextDecoder>

namespace {

// Time: parsing costs a few units per character in any case, so eight per byte on
// top leaves any sane file far below the budget; the fixed allowance covers small
// files, where the size says little. At roughly 5 ns a unit, a 50 MB file is cut off
// after a few seconds of extra work at the most.
constexpr qint64 work_allowance = qint64(1) << 26;
constexpr qint64 work_per_byte = 8;
// Memory that the parser and the reader may hold beyond the text of the file.
constexpr qint64 memory_allowance = qint64(1) << 25;
constexpr qint64 memory_per_byte = 4;
// The parser keeps about 120 bytes for each open element.
constexpr qint64 memory_per_open_element = 128;
// An expanded character is held by the parser and in the text read from it, two
// bytes each time.
constexpr qint64 memory_per_expanded_character = 4;
// QXmlStreamReader's default entity expansion limit: the most that one reference
// can add, nested references included. The estimate charges every reference that.
constexpr qint64 expansion_per_reference = 4096;
// The shortest attribute definition of an attribute list, " a ID ''", has 8 characters.
constexpr qint64 characters_per_attribute_default = 8;

// Blocks are passed on at this size at the most, so that a block's text fits a QString.
constexpr qint64 largest_block = qint64(1) << 20;

// Keeps the first characters of a name: enough to tell `xmlns` and the predefined
// entities from other names.
constexpr int name_head_size = 6;

bool is_markup_space(QChar unit)
{
    return unit == QLatin1Char(' ') || unit == QLatin1Char('\t') || unit == QLatin1Char('\n') ||
           unit == QLatin1Char('\r');
}

bool is_quote(QChar unit)
{
    return unit == QLatin1Char('"') || unit == QLatin1Char('\'');
}

bool is_name_unit(QChar unit)
{
    return unit.unicode() >= 0x80 || unit.isLetterOrNumber() || unit == QLatin1Char('_') ||
           unit == QLatin1Char(':') || unit == QLatin1Char('.') || unit == QLatin1Char('-') ||
           unit == QLatin1Char('#');
}

// The parser's own choice from the first bytes: byte order marks, else a '<' in a
// wide encoding, else UTF-8.
int mib_from_first_bytes(const char* data, qint64 size)
{
    if (size < 4) {
        return 106;
    }
    const auto b = [data](int i) { return static_cast<uchar>(data[i]); };
    if ((b(0) == 0 && b(1) == 0 && b(2) == 0xfe && b(3) == 0xff) ||
        (b(0) == 0xff && b(1) == 0xfe && b(2) == 0 && b(3) == 0)) {
        return 1017; // UTF-32 with byte order mark
    }
    if (b(0) == 0x3c && b(1) == 0 && b(2) == 0 && b(3) == 0) {
        return 1019; // UTF-32LE
    }
    if (b(0) == 0 && b(1) == 0 && b(2) == 0 && b(3) == 0x3c) {
        return 1018; // UTF-32BE
    }
    if ((b(0) == 0xfe && b(1) == 0xff) || (b(0) == 0xff && b(1) == 0xfe)) {
        return 1015; // UTF-16 with byte order mark
    }
    if (b(0) == 0x3c && b(1) == 0) {
        return 1014; // UTF-16LE
    }
    if (b(0) == 0 && b(1) == 0x3c) {
        return 1013; // UTF-16BE
    }
    return 106;
}

// The encoding named by an XML declaration at the start of `text`, or empty.
QByteArray declared_encoding(const QString& text)
{
    const int start = text.startsWith(QChar(0xfeff)) ? 1 : 0;
    if (text.midRef(start, 5) != QLatin1String("<?xml")) {
        return {};
    }
    const int end = text.indexOf(QLatin1String("?>"), start);
    const int keyword = text.indexOf(QLatin1String("encoding"), start);
    if (end < 0 || keyword < 0 || keyword > end) {
        return {};
    }
    int quote = keyword + 8;
    while (quote < end && !is_quote(text.at(quote))) {
        ++quote;
    }
    const int close = quote < end ? text.indexOf(text.at(quote), quote + 1) : -1;
    if (close < 0 || close > end) {
        return {};
    }
    return text.mid(quote + 1, close - quote - 1).toLatin1();
}

} // namespace

xml_cost_guard::xml_cost_guard(QIODevice& source) : source_(source)
{
    open(QIODevice::ReadOnly);
}

xml_cost_guard::~xml_cost_guard() = default;

qint64 xml_cost_guard::writeData(const char*, qint64)
{
    return -1;
}

qint64 xml_cost_guard::readData(char* data, qint64 max_size)
{
    if (tripped_) {
        return -1;
    }
    const qint64 count = source_.read(data, qMin(max_size, largest_block));
    if (count <= 0) {
        return count;
    }
    const qint64 offset = bytes_read_;
    bytes_read_ += count;
    if (!decoder_) {
        choose_decoder(data, count);
    }
    if (!scan(decoder_->toUnicode(data, static_cast<int>(count)))) {
        // The parser gets nothing of this block: what it has read so far stands.
        tripped_ = true;
        qWarning("XMP data too costly to parse, read up to byte %lld", offset);
        return -1;
    }
    return count;
}

void xml_cost_guard::choose_decoder(const char* data, qint64 size)
{
    QTextCodec* codec = QTextCodec::codecForMib(mib_from_first_bytes(data, size));
    // The parser switches to the encoding that the declaration names, if it knows it.
    const QString head = codec->toUnicode(data, static_cast<int>(size));
    const QByteArray declared_name = declared_encoding(head);
    QTextCodec* declared =
        declared_name.isEmpty() ? nullptr : QTextCodec::codecForName(declared_name);
    if (declared != nullptr) {
        codec = declared;
    }
    decoder_.reset(codec->makeDecoder());
}

bool xml_cost_guard::within_budget() const
{
    const qint64 size = qMax(bytes_read_, source_.isSequential() ? 0 : source_.size());
    return work_ <= work_allowance + work_per_byte * size &&
           memory_ <= memory_allowance + memory_per_byte * size;
}

void xml_cost_guard::begin_element()
{
    attributes_in_tag_ = 0;
    declarations_in_tag_ = 0;
    last_was_slash_ = false;
    // The element's prefix is looked up, and every attribute default of the DTD checked.
    work_ += namespaces_in_scope_ + attribute_defaults_;
}

void xml_cost_guard::begin_attribute()
{
    ++attributes_in_tag_;
    // Compared with each earlier attribute of the tag; its prefix looked up.
    work_ += attributes_in_tag_ + namespaces_in_scope_;
    name_head_.clear();
}

void xml_cost_guard::end_attribute_name()
{
    if (name_head_ == QLatin1String("xmlns") || name_head_ == QLatin1String("xmlns:")) {
        ++declarations_in_tag_;
    }
}

void xml_cost_guard::end_start_tag(bool self_closing)
{
    if (!self_closing) {
        declarations_per_element_.append(declarations_in_tag_);
        namespaces_in_scope_ += declarations_in_tag_;
        memory_ += memory_per_open_element;
    }
    state_ = state::content;
}

void xml_cost_guard::end_entity_reference()
{
    // Character references and the five predefined entities add nothing of note.
    const bool predefined =
        name_head_.startsWith(QLatin1Char('#')) || name_head_ == QLatin1String("lt") ||
        name_head_ == QLatin1String("gt") || name_head_ == QLatin1String("amp") ||
        name_head_ == QLatin1String("apos") || name_head_ == QLatin1String("quot");
    if (!predefined) {
        charge_expansion();
    }
    state_ = return_state_;
}

void xml_cost_guard::charge_expansion()
{
    memory_ += expansion_per_reference * memory_per_expanded_character;
    work_ += expansion_per_reference;
}

void xml_cost_guard::add_attribute_defaults(qint64 count)
{
    // Each new definition is compared with all earlier ones.
    work_ += count * attribute_defaults_ + count * count / 2;
    attribute_defaults_ += count;
}

bool xml_cost_guard::scan(const QString& units)
{
    const int count = units.size();
    int i = 0;
    while (i < count) {
        const QChar unit = units.at(i);
        switch (state_) {
        case state::content:
            if (unit == QLatin1Char('<')) {
                state_ = state::tag_open;
            } else if (unit == QLatin1Char('&')) {
                name_head_.clear();
                return_state_ = state::content;
                state_ = state::entity_reference;
            }
            break;
        case state::tag_open:
            if (unit == QLatin1Char('/')) {
                state_ = state::end_tag;
            } else if (unit == QLatin1Char('!')) {
                name_head_.clear();
                return_state_ = state::content;
                state_ = state::markup_open;
            } else if (unit == QLatin1Char('?')) {
                closing_run_ = 0;
                return_state_ = state::content;
                state_ = state::processing_instruction;
            } else {
                begin_element();
                state_ = state::start_tag_name;
                continue;
            }
            break;
        case state::start_tag_name:
        case state::start_tag:
        case state::attribute_name:
            if (unit == QLatin1Char('>')) {
                if (state_ == state::attribute_name) {
                    end_attribute_name();
                }
                end_start_tag(last_was_slash_);
            } else if (is_markup_space(unit) || unit == QLatin1Char('=')) {
                if (state_ == state::attribute_name) {
                    end_attribute_name();
                }
                state_ = state::start_tag;
            } else if (state_ != state::start_tag_name && is_quote(unit)) {
                if (state_ == state::attribute_name) {
                    end_attribute_name();
                }
                quote_ = unit;
                state_ = state::attribute_value;
            } else if (state_ == state::start_tag && unit != QLatin1Char('/')) {
                begin_attribute();
                state_ = state::attribute_name;
                continue;
            } else if (state_ == state::attribute_name && name_head_.size() < name_head_size) {
                name_head_.append(unit);
            }
            if (!is_markup_space(unit)) {
                last_was_slash_ = unit == QLatin1Char('/');
            }
            break;
        case state::attribute_value:
            if (unit == quote_) {
                last_was_slash_ = false;
                state_ = state::start_tag;
            } else if (unit == QLatin1Char('&')) {
                name_head_.clear();
                return_state_ = state::attribute_value;
                state_ = state::entity_reference;
            }
            break;
        case state::entity_reference:
        case state::parameter_entity_reference:
            if (is_name_unit(unit)) {
                if (name_head_.size() < name_head_size) {
                    name_head_.append(unit);
                }
                break;
            }
            if (state_ == state::entity_reference) {
                end_entity_reference();
            } else {
                // The text of a parameter entity may declare attribute defaults too.
                charge_expansion();
                add_attribute_defaults(expansion_per_reference / characters_per_attribute_default);
                state_ = state::doctype_subset;
            }
            if (unit != QLatin1Char(';')) {
                continue;
            }
            break;
        case state::end_tag:
            if (unit == QLatin1Char('>')) {
                if (!declarations_per_element_.isEmpty()) {
                    namespaces_in_scope_ -= declarations_per_element_.takeLast();
                    memory_ -= memory_per_open_element;
                }
                state_ = state::content;
            }
            break;
        case state::markup_open:
            // After "<!": a comment, a CDATA section, the DOCTYPE or, in the DTD, a
            // declaration, told apart by the first characters.
            name_head_.append(unit);
            if (name_head_ == QLatin1String("-")) {
                break;
            }
            if (name_head_ == QLatin1String("--")) {
                closing_run_ = 0;
                state_ = state::comment;
            } else if (name_head_ == QLatin1String("[") && return_state_ == state::content) {
                closing_run_ = 0;
                state_ = state::cdata;
            } else if (name_head_.size() == 7 || !unit.isLetter()) {
                const bool in_subset = return_state_ == state::doctype_subset;
                const bool is_doctype = !in_subset && name_head_ == QLatin1String("DOCTYPE");
                in_attribute_list_ = in_subset && name_head_ == QLatin1String("ATTLIST");
                declaration_length_ = name_head_.size();
                quote_ = QChar();
                state_ = is_doctype ? state::doctype : state::declaration;
            }
            break;
        case state::comment:
            if (unit == QLatin1Char('>') && closing_run_ >= 2) {
                state_ = return_state_;
            }
            closing_run_ = unit == QLatin1Char('-') ? closing_run_ + 1 : 0;
            break;
        case state::cdata:
            if (unit == QLatin1Char('>') && closing_run_ >= 2) {
                state_ = state::content;
            }
            closing_run_ = unit == QLatin1Char(']') ? closing_run_ + 1 : 0;
            break;
        case state::processing_instruction:
            if (unit == QLatin1Char('>') && closing_run_ >= 1) {
                state_ = return_state_;
            }
            closing_run_ = unit == QLatin1Char('?') ? 1 : 0;
            break;
        case state::doctype:
            if (!quote_.isNull()) {
                if (unit == quote_) {
                    quote_ = QChar();
                }
            } else if (is_quote(unit)) {
                quote_ = unit;
            } else if (unit == QLatin1Char('[')) {
                state_ = state::doctype_subset;
            } else if (unit == QLatin1Char('>')) {
                state_ = state::content;
            }
            break;
        case state::doctype_subset:
            if (unit == QLatin1Char('<')) {
                state_ = state::subset_tag_open;
            } else if (unit == QLatin1Char('%')) {
                name_head_.clear();
                state_ = state::parameter_entity_reference;
            } else if (unit == QLatin1Char(']')) {
                quote_ = QChar();
                state_ = state::doctype;
            }
            break;
        case state::subset_tag_open:
            return_state_ = state::doctype_subset;
            if (unit == QLatin1Char('?')) {
                closing_run_ = 0;
                state_ = state::processing_instruction;
            } else if (unit == QLatin1Char('!')) {
                name_head_.clear();
                state_ = state::markup_open;
            } else {
                in_attribute_list_ = false;
                declaration_length_ = 0;
                quote_ = QChar();
                state_ = state::declaration;
                continue;
            }
            break;
        case state::declaration:
            ++declaration_length_;
            if (!quote_.isNull()) {
                if (unit == quote_) {
                    quote_ = QChar();
                }
            } else if (is_quote(unit)) {
                quote_ = unit;
            } else if (unit == QLatin1Char('>')) {
                if (in_attribute_list_) {
                    add_attribute_defaults(declaration_length_ / characters_per_attribute_default +
                                           1);
                }
                in_attribute_list_ = false;
                state_ = return_state_;
            }
            break;
        }
        ++i;
    }
    return within_budget();
}
