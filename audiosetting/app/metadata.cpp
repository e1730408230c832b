// SPDX-License-Identifier: Apache-2.0
#include "plugin.h"

#include <QPointer>
#include <QtPlugin>

// The plug-in's entry points and its metadata record.
//
// The host reads the record from the file before it loads it. Head units in the field carry Qt 5.3, whose record is
// binary JSON behind the tag "QTMETADATA  "; later releases of moc write another form that those loaders reject,
// while later loaders read this one. So the record stands here byte by byte instead of Q_PLUGIN_METADATA:
//
//   { "IID": "com.norvale.Qt.audiosettingPlugin", "MetaData": {}, "className": "Plugin", "debug": true,
//     "version": 328450 }                                          (328450 = 0x050302, Qt 5.3.2)
//
// All numbers are little-endian. An entry begins with 32 bits: type in bits 0-2 (1 true or false, 2 number, 3 text,
// 5 object), bit 3 "Latin-1 text, or the number itself in bits 5-31", bit 4 "Latin-1 key", bits 5-31 the value or
// the offset of its data from the start of the object. Key and text follow as a 16-bit length and characters,
// padded to four bytes.
QT_PLUGIN_METADATA_SECTION
static const unsigned char qt_pluginMetaData[] = {
    'Q', 'T', 'M', 'E', 'T', 'A', 'D', 'A', 'T', 'A', ' ', ' ',
    // document: tag, version 1
    'q', 'b', 'j', 's', 0x01, 0x00, 0x00, 0x00,
    // object: 160 bytes, five entries (length << 1 | is-object), offset table at 140
    0xa0, 0x00, 0x00, 0x00, 0x0b, 0x00, 0x00, 0x00, 0x8c, 0x00, 0x00, 0x00,
    // at 12: "IID", text at 24
    0x1b, 0x03, 0x00, 0x00, 0x03, 0x00, 'I', 'I', 'D', 0x00, 0x00, 0x00,
    // at 24
    0x21, 0x00, 'c', 'o', 'm', '.', 'n', 'o', 'r', 'v', 'a', 'l', 'e', '.', 'Q', 't', '.', 'a', 'u', 'd', 'i', 'o', 's',
    'e', 't', 't', 'i', 'n', 'g', 'P', 'l', 'u', 'g', 'i', 'n', 0x00,
    // at 60: "MetaData", object at 76
    0x95, 0x09, 0x00, 0x00, 0x08, 0x00, 'M', 'e', 't', 'a', 'D', 'a', 't', 'a', 0x00, 0x00,
    // at 76: an empty object
    0x0c, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x0c, 0x00, 0x00, 0x00,
    // at 88: "className", text at 104
    0x1b, 0x0d, 0x00, 0x00, 0x09, 0x00, 'c', 'l', 'a', 's', 's', 'N', 'a', 'm', 'e', 0x00,
    // at 104
    0x06, 0x00, 'P', 'l', 'u', 'g', 'i', 'n',
    // at 112: "debug", true
    0x31, 0x00, 0x00, 0x00, 0x05, 0x00, 'd', 'e', 'b', 'u', 'g', 0x00,
    // at 124: "version", 328450
    0x5a, 0x60, 0xa0, 0x00, 0x07, 0x00, 'v', 'e', 'r', 's', 'i', 'o', 'n', 0x00, 0x00, 0x00,
    // at 140: offsets of the entries, in the order of their keys
    0x0c, 0x00, 0x00, 0x00, 0x3c, 0x00, 0x00, 0x00, 0x58, 0x00, 0x00, 0x00, 0x70, 0x00, 0x00, 0x00, 0x7c, 0x00, 0x00,
    0x00};

extern "C" Q_DECL_EXPORT const char *qt_plugin_query_metadata() {
    return reinterpret_cast<const char *>(qt_pluginMetaData);
}

extern "C" Q_DECL_EXPORT QObject *qt_plugin_instance() {
    static QPointer<QObject> instance;
    if (instance.isNull()) {
        instance = new audiosetting::Plugin;
    }
    return instance.data();
}
