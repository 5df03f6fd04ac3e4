#pragma once

#include <QFile>
#include <QTemporaryFile>
#include <cstdio>

/// A stream that keeps what is written to it, byte for byte, in place of standard output or standard error.
class Memory_Stream
{
  public:
    Memory_Stream()
    {
        if (file_.open())
            stream_ = std::fopen(QFile::encodeName(file_.fileName()).constData(), "wb");
    }

    Memory_Stream(const Memory_Stream&) = delete;
    Memory_Stream& operator=(const Memory_Stream&) = delete;

    ~Memory_Stream() { std::fclose(stream_); }

    std::FILE* Stream() { return stream_; }

    QString Text()
    {
        std::fflush(stream_);
        file_.seek(0);
        return QString::fromUtf8(file_.readAll());
    }

  private:
    QTemporaryFile file_;
    std::FILE* stream_ = nullptr;
};
