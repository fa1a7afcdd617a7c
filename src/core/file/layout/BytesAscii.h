#pragma once
// Whether bytes are all ASCII, eight at a time: the file's lines and a record's values are checked by the million,
// and nearly all of them are.
#include <QByteArrayView>
#include <QtGlobal>

#include <cstring>

inline bool soAscii(QByteArrayView v)
{
    const char* p = v.data();
    qsizetype n = v.size();
    quint64 altos = 0;
    for (; n >= 8; p += 8, n -= 8) {
        quint64 oito;
        std::memcpy(&oito, p, 8);
        altos |= oito;
    }
    for (; n > 0; ++p, --n)
        altos |= static_cast<unsigned char>(*p);
    return (altos & 0x8080808080808080ULL) == 0;
}
