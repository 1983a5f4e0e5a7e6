#include "orvane/app/base/TextConversion.h"

#include "meridane/base/values/Unicode.h"

#include <QDir>
#include <QUrl>

#include <filesystem>
#include <system_error>

namespace orvane {

namespace {

// A byte that is no UTF-8 becomes one of these, which no UTF-8 gives.
constexpr char16_t firstOfBytes = 0xDC00;

bool isByte(const QString& text, qsizetype i)
{
    const char16_t unit = text[i].unicode();
    return unit >= firstOfBytes + 0x80 && unit <= firstOfBytes + 0xFF && (i == 0 || !text[i - 1].isHighSurrogate());
}

QByteArray toBytes(const QString& fileName)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype i = 0; i < fileName.size(); ++i) {
        if (!isByte(fileName, i))
            continue;
        bytes += QStringView(fileName).sliced(start, i - start).toUtf8();
        bytes += static_cast<char>(fileName[i].unicode() - firstOfBytes);
        start = i + 1;
    }
    return bytes + QStringView(fileName).sliced(start).toUtf8();
}

} // namespace

std::string toStdFileName(const QString& fileName)
{
    return toBytes(fileName).toStdString();
}

QString fromStdFileName(std::string_view bytes)
{
    QString fileName;
    while (!bytes.empty()) {
        const std::size_t invalid = meridane::findInvalidUtf8(bytes);
        // Qt's own conversions drop a byte order mark.
        fileName += QStringView(meridane::utf8ToUtf16(bytes.substr(0, invalid)));
        if (invalid == std::string_view::npos)
            break;
        fileName += QChar(static_cast<char16_t>(firstOfBytes + static_cast<unsigned char>(bytes[invalid])));
        bytes.remove_prefix(invalid + 1);
    }
    return fileName;
}

QString absoluteFileName(const QString& fileName)
{
    if (fileName.isEmpty() || fileName.startsWith(u'/'))
        return QDir::cleanPath(fileName);
    // Qt's name of the current folder lacks the bytes that aren't UTF-8.
    std::error_code error;
    const std::string folder = std::filesystem::current_path(error).string();
    return QDir::cleanPath(fromStdFileName(folder) + u'/' + fileName);
}

QByteArray toFileUrl(const QString& fileName)
{
    return "file://" + toBytes(fileName).toPercentEncoding("/");
}

QString fromFileUrl(const QByteArray& url)
{
    const QUrl parsed = QUrl::fromEncoded(url);
    if (!parsed.isLocalFile())
        return {};
    return fromStdFileName(QByteArray::fromPercentEncoding(parsed.path(QUrl::FullyEncoded).toLatin1()).toStdString());
}

} // namespace orvane
