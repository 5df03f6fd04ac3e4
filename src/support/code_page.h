#pragma once

#include <QByteArrayView>
#include <QString>

/// The text of bytes that are no UTF-8, in the 8-bit code page of the system: on Windows the one that programs of old
/// write their files in, here Latin-1.
QString Text_In_Code_Page(QByteArrayView bytes);
