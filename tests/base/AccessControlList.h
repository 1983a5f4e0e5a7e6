#pragma once

#include <QtEndian>

#include <initializer_list>
#include <string>

struct AclEntry {
    quint16 tag; // 1 owner, 2 a user, 4 group, 16 mask, 32 others
    quint16 permissions;
    qint32 id; // of the user, or -1
};

/// The bytes of an access control list, as the kernel takes them.
inline std::string accessControlList(std::initializer_list<AclEntry> entries)
{
    const quint32 version = qToLittleEndian(quint32{2});
    std::string bytes(reinterpret_cast<const char*>(&version), sizeof version);
    for (AclEntry entry : entries) {
        entry = {qToLittleEndian(entry.tag), qToLittleEndian(entry.permissions), qToLittleEndian(entry.id)};
        bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    }
    return bytes;
}
