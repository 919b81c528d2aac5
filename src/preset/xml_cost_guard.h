#pragma once

// A pass-through device between a file and QXmlStreamReader that keeps the parse
// linear in the file's size, in time and in memory.
//
// QXmlStreamReader does work that grows faster than its input in a few places: it
// compares each attribute of a start tag with all earlier ones, looks each prefix up
// through every namespace declaration in scope, walks every attribute default of the
// DTD at each start tag and each new definition, and lets each entity reference
// expand to thousands of characters. It also keeps about 120 bytes for every open
// element. A 50 MB file of one start tag with a million attributes would keep it busy
// for hours; one of nested elements would take gigabytes. The guard reads the
// characters ahead of the parser, estimates that work and memory from the markup, and
// ends the data where the estimate exceeds a budget proportional to the file's size:
// the parser gets nothing of the block in which that happens and sees a document that
// ends early, which the reader logs as it logs any truncated file. Presets never come
// near the budget, which is many times what their markup needs.

#include <QByteArray>
#include <QIODevice>
#include <QVector>

#include <memory>

class QTextDecoder;

class xml_cost_guard : public QIODevice
{
public:
    // `source` must be open for reading and outlive the guard. Opens the guard.
    explicit xml_cost_guard(QIODevice& source);
    ~xml_cost_guard() override;

    bool isSequential() const override { return true; }
    // True once the data was cut short.
    bool tripped() const { return tripped_; }

protected:
    qint64 readData(char* data, qint64 max_size) override;
    qint64 writeData(const char* data, qint64 size) override;

private:
    enum class state
    {
        content,
        tag_open,
        start_tag_name,
        start_tag,
        attribute_name,
        attribute_value,
        end_tag,
        markup_open,
        comment,
        cdata,
        processing_instruction,
        doctype,
        doctype_subset,
        subset_tag_open,
        declaration,
        entity_reference,
        parameter_entity_reference,
    };

    void choose_decoder(const char* data, qint64 size);
    // Updates the estimate with the next characters; false once over budget.
    bool scan(const QString& units);
    void begin_element();
    void begin_attribute();
    void end_attribute_name();
    void end_start_tag(bool self_closing);
    void end_entity_reference();
    void charge_expansion();
    void add_attribute_defaults(qint64 count);
    bool within_budget() const;

    QIODevice& source_;
    std::unique_ptr<QTextDecoder> decoder_;
    qint64 bytes_read_ = 0;
    bool tripped_ = false;

    // The estimate: comparisons and characters the parser will go through beyond one
    // pass over the input, and the bytes it and the reader will hold beyond its text.
    qint64 work_ = 0;
    qint64 memory_ = 0;

    state state_ = state::content;
    state return_state_ = state::content;
    // Namespace declarations in scope, and per open element how many it declared.
    qint64 namespaces_in_scope_ = 0;
    QVector<qint64> declarations_per_element_;
    // An upper bound for the attribute defaults the DTD declares.
    qint64 attribute_defaults_ = 0;

    qint64 attributes_in_tag_ = 0;
    qint64 declarations_in_tag_ = 0;
    QString name_head_;
    QChar quote_;
    bool last_was_slash_ = false;
    bool in_attribute_list_ = false;
    qint64 declaration_length_ = 0;
    int closing_run_ = 0;
};
