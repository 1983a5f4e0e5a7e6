#include "orvane/app/instance/HandedFile.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <string>

namespace {

constexpr quint16 handedVersion = 1;
constexpr qsizetype headerSize = 8;

QByteArray handedMark()
{
    return QByteArrayLiteral("OrvH");
}

/// A message of a version number and what `write` adds.
template <typename Write>
QByteArray framed(const Write& write)
{
    QByteArray content;
    QDataStream stream(&content, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << handedVersion;
    write(stream);
    QByteArray bytes = handedMark();
    bytes.resize(headerSize);
    qToBigEndian(static_cast<quint32>(content.size()), bytes.data() + handedMark().size());
    return bytes + content;
}

/// Reads the content with `read`; it must be of this version, whole, and have nothing behind its end.
template <typename Read>
orvane::Result<> readContent(const QByteArray& content, const Read& read)
{
    QDataStream stream(content);
    stream.setVersion(QDataStream::Qt_6_4);
    quint16 version = 0;
    stream >> version;
    if (stream.status() == QDataStream::Ok && version != handedVersion)
        return orvane::Failure{QStringLiteral("The message is of another version of the program.")};
    read(stream);
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return orvane::Failure{QStringLiteral("The message is damaged.")};
    return {};
}

QByteArray nameBytes(const QString& fileName)
{
    return QByteArray::fromStdString(orvane::toStdFileName(fileName));
}

} // namespace

QByteArray HandedFile::toBytes() const
{
    return framed([this](QDataStream& stream) {
        stream << programVersion.toUtf8() << nameBytes(fileName) << select.toUtf8() << activationToken;
    });
}

orvane::Result<HandedFile> HandedFile::fromContent(const QByteArray& content)
{
    QByteArray version;
    QByteArray name;
    QByteArray selected;
    QByteArray token;
    if (const auto whole
        = readContent(content, [&](QDataStream& stream) { stream >> version >> name >> selected >> token; });
        !whole)
        return orvane::Failure{whole.error()};
    const bool isUsable = !name.contains('\0') && !token.contains('\0') && (name.isEmpty() || name.startsWith('/'));
    if (!isUsable)
        return orvane::Failure{QStringLiteral("The message is damaged.")};
    return HandedFile{
        QString::fromUtf8(version), orvane::fromStdFileName(name.toStdString()), QString::fromUtf8(selected), token};
}

QByteArray HandedAnswer::toBytes() const
{
    return framed([this](QDataStream& stream) { stream << taken << reason.toUtf8(); });
}

orvane::Result<HandedAnswer> HandedAnswer::fromContent(const QByteArray& content)
{
    quint8 isTaken = 0;
    QByteArray text;
    if (const auto whole = readContent(content, [&](QDataStream& stream) { stream >> isTaken >> text; }); !whole)
        return orvane::Failure{whole.error()};
    return HandedAnswer{isTaken == 1, QString::fromUtf8(text)};
}

orvane::Result<std::optional<QByteArray>> orvane::takeHandedContent(QByteArray& received)
{
    const QByteArray mark = handedMark();
    const qsizetype known = qMin(received.size(), mark.size());
    if (received.left(known) != mark.left(known))
        return Failure{QStringLiteral("This is no message of the program.")};
    if (received.size() < headerSize)
        return std::optional<QByteArray>();
    const qsizetype size = qFromBigEndian<quint32>(received.constData() + mark.size());
    if (size > longestHandedContent)
        return Failure{QStringLiteral("The message is too long.")};
    if (received.size() < headerSize + size)
        return std::optional<QByteArray>();
    const QByteArray content = received.mid(headerSize, size);
    received.remove(0, headerSize + size);
    return std::optional<QByteArray>(content);
}
