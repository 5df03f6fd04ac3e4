#pragma once

#include <QString>
#include <cstdio>
#include <cstdlib>

/// A stream that keeps what is written to it, in place of standard output or standard error.
class Memory_Stream
{
  public:
    Memory_Stream() : stream_(open_memstream(&text_, &size_)) {}

    Memory_Stream(const Memory_Stream&) = delete;
    Memory_Stream& operator=(const Memory_Stream&) = delete;

    ~Memory_Stream()
    {
        std::fclose(stream_);
        std::free(text_);
    }

    std::FILE* Stream() { return stream_; }

    QString Text()
    {
        std::fflush(stream_);
        return QString::fromUtf8(text_, static_cast<qsizetype>(size_));
    }

  private:
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::FILE* stream_;
};
