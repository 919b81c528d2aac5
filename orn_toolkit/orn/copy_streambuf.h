#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string>

namespace orn {

// A tap on an output stream: it takes the stream's place as its buffer, and every
// batch of text written to the stream goes both to a copy stream and, unchanged,
// to the buffer the stream had before. The log window reads the copy; the console
// keeps getting what it always got.
//
// Text is collected in a fixed put area and handed on when the area is full or the
// stream is flushed. A batch is handed on as a C string, so text behind an embedded
// zero character is dropped, in the copy and the console alike.
template<typename Char, typename Traits = std::char_traits<Char>>
class copy_streambuf : public std::basic_streambuf<Char, Traits>
{
public:
    using stream_type = std::basic_ostream<Char, Traits>;
    using buffer_type = std::basic_streambuf<Char, Traits>;
    using int_type = typename Traits::int_type;

    // Takes over `stream`; `copy` receives every batch as well and must outlive the tap.
    copy_streambuf(stream_type& stream, stream_type& copy)
        : previous(stream.rdbuf()), stream(stream), copy(copy)
    {
        this->setp(area, area + area_size);
        stream.rdbuf(this);
    }

    copy_streambuf(const copy_streambuf&) = delete;
    copy_streambuf& operator=(const copy_streambuf&) = delete;

    // Text still waiting in the put area is handed on first, so that nothing
    // written before the tap goes away is lost to the console.
    ~copy_streambuf() override
    {
        if (this->pptr() != this->pbase()) {
            hand_on(this->pptr());
        }
        stream.rdbuf(previous);
    }

protected:
    int sync() override
    {
        hand_on(this->pptr());
        return 0;
    }

    int_type overflow(int_type ch) override
    {
        Char* end = this->pptr();
        if (Traits::eq_int_type(ch, Traits::eof())) {
            hand_on(end);
            return 0;
        }
        // The area keeps room for this one character behind its end.
        *end++ = Traits::to_char_type(ch);
        hand_on(end);
        return ch;
    }

private:
    // One character beyond the area for overflow's own, one for the terminator.
    static constexpr std::size_t area_size = 1022;

    void hand_on(Char* end)
    {
        *end = Char();
        this->setp(area, area + area_size);
        const std::streamsize length = static_cast<std::streamsize>(Traits::length(area));
        copy.write(area, length);
        // Straight into the previous buffer rather than through the stream: a width
        // set on the stream for the text being written must not pad this batch again.
        if (previous != nullptr) {
            previous->sputn(area, length);
            previous->pubsync();
        }
    }

    Char area[area_size + 2] = {};
    buffer_type* previous;
    stream_type& stream;
    stream_type& copy;
};

} // namespace orn
