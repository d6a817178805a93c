// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <mutex>
#include <ostream>
#include <streambuf>
#include <string>
#include <vector>

/// Takes the place of a stream's own buffer and keeps what any thread writes there.
class OwnBuffer : public std::streambuf {
public:
    explicit OwnBuffer(std::ostream& stream)
        : m_stream(stream)
        , m_previous(stream.rdbuf(this))
    {
    }
    ~OwnBuffer() override { m_stream.rdbuf(m_previous); }

    std::vector<std::string> writes; ///< a string a call; to be read when no thread writes

protected:
    int_type overflow(int_type c) override
    {
        const char character = traits_type::to_char_type(c);
        sputn(&character, 1);
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        const std::lock_guard lock(m_mutex);
        writes.emplace_back(text, static_cast<std::size_t>(count));
        return count;
    }

private:
    std::ostream& m_stream;
    std::streambuf* m_previous;
    std::mutex m_mutex;
};
