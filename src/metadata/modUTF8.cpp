// SPDX-License-Identifier: MIT
#include "metadata/modUTF8.h"

namespace metadata {

QString DecodeUtf8(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (qsizetype at = 0; at < bytes.size();) {
        const auto byte = [&](qsizetype index) {
            return static_cast<unsigned>(static_cast<unsigned char>(bytes[at + index]));
        };
        const unsigned lead = byte(0);
        const qsizetype size = lead < 192 ? 1 : lead < 224 ? 2 : 3;
        if (size > bytes.size() - at) {
            break;
        }
        unsigned code = lead;
        if (size == 2) {
            code = (lead & 0x1F) << 6 | (byte(1) & 0x3F);
        } else if (size == 3) {
            code = (lead & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
        }
        text += QChar(static_cast<char16_t>(code));
        at += size;
    }
    return text;
}

} // namespace metadata
