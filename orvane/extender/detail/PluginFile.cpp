#include "orvane/extender/detail/PluginFile.h"

#include <QByteArray>
#include <QFile>

#include <cstring>

#include <elf.h>

namespace orvane {
namespace {

constexpr const char* noteOwner = "Orvane";
constexpr Elf64_Word stampType = 1;
// A compiler's and a linker's notes take some hundred bytes, and ours as much for each source.
constexpr quint64 mostNoteBytes = quint64{1} << 20;

template <typename Header>
bool readHeader(QFile& file, Header& header)
{
    return file.read(reinterpret_cast<char*>(&header), sizeof header) == sizeof header;
}

bool isLibrary(const Elf64_Ehdr& header)
{
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 && header.e_ident[EI_CLASS] == ELFCLASS64
        && header.e_phentsize == sizeof(Elf64_Phdr);
}

// The system's own reason for refusing a library of another processor is that there is no such file.
bool isForeign(const Elf64_Ehdr& header)
{
    QFile program(QStringLiteral("/proc/self/exe"));
    Elf64_Ehdr own;
    return program.open(QIODevice::ReadOnly) && readHeader(program, own) && own.e_machine != header.e_machine;
}

qsizetype aligned(quint64 size)
{
    constexpr quint64 alignment = 4;
    return static_cast<qsizetype>((size + alignment - 1) / alignment * alignment);
}

void addStamps(QByteArrayView notes, QStringList& stamps)
{
    Elf64_Nhdr note;
    while (notes.size() >= qsizetype{sizeof note}) {
        std::memcpy(&note, notes.data(), sizeof note);
        notes = notes.sliced(sizeof note);
        const qsizetype ownerSize = aligned(note.n_namesz);
        const qsizetype textSize = aligned(note.n_descsz);
        if (ownerSize > notes.size() || textSize > notes.size() - ownerSize)
            return;
        const QByteArray owner(notes.first(note.n_namesz).data()); // up to its terminating zero
        const QString text = QString::fromUtf8(notes.sliced(ownerSize, note.n_descsz)).remove(QChar::Null);
        if (note.n_type == stampType && owner == noteOwner && !stamps.contains(text))
            stamps.append(text);
        notes = notes.sliced(ownerSize + textSize);
    }
}

} // namespace

PluginFile readPluginFile(const QString& fileName)
{
    PluginFile result;
    QFile file(fileName);
    Elf64_Ehdr header;
    if (!file.open(QIODevice::ReadOnly) || !readHeader(file, header) || !isLibrary(header))
        return result;
    result.isLibrary = true;
    result.isForeign = isForeign(header);
    const auto size = static_cast<quint64>(file.size());
    for (quint64 i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment;
        const quint64 place = header.e_phoff + i * sizeof segment;
        if (place > size || !file.seek(static_cast<qint64>(place)) || !readHeader(file, segment)) {
            result.isCutOff = true;
            return result;
        }
        const bool isInFile = segment.p_offset <= size && segment.p_filesz <= size - segment.p_offset;
        if (segment.p_type == PT_LOAD && !isInFile)
            result.isCutOff = true;
        if (segment.p_type != PT_NOTE || !isInFile || segment.p_filesz > mostNoteBytes)
            continue;
        if (file.seek(static_cast<qint64>(segment.p_offset)))
            addStamps(file.read(static_cast<qint64>(segment.p_filesz)), result.stamps);
    }
    return result;
}

} // namespace orvane
