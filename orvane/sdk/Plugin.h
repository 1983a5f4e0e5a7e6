#pragma once

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"
#include "orvane/extender/VbText.h"

#include <QStringList>

#include <utility>

namespace orv {

/// Extensions one after the other in memory, in the order of the classes: of two editors for the same type the docks
/// show the one with the higher address.
template <typename... Extensions>
struct ExtensionRow {
    template <typename Visit>
    /// There is none to call it for.
    void forEach(const Visit& /*visit*/)
    {
    }
};
template <typename First, typename... Rest>
/// The extensions of a plug-in: the first one and the row of the others.
struct ExtensionRow<First, Rest...> {
    template <typename Visit>
    /// Calls it for each extension, in their order.
    void forEach(const Visit& visit)
    {
        visit(first);
        rest.forEach(visit);
    }

    First first; ///< The first one.
    ExtensionRow<Rest...> rest; ///< The others.
};

/// The names of classes as they are listed, separated by commas, for people: "orv::LampBar" is "Lamp Bar".
[[nodiscard]] QStringList titlesOf(const char* classes);

/// A plug-in that owns an extension of each class. `ORV_PLUGIN` makes it.
template <typename... Extensions>
class Plugin final : public OrvPlugin {
public:
    /// `classes` lists the names of the classes. An extension without a name gets the title of its class, and one
    /// without a version that of the plug-in.
    Plugin(const char* name, const char* version, const char* classes)
    {
        m_name = name;
        m_version = version;
        const QStringList titles = titlesOf(classes);
        qsizetype position = 0;
        m_row.forEach([&](OrvExtension& extension) {
            complete(extension.*(&Access::m_name), orvane::toVbString(titles.value(position++)));
            complete(extension.*(&Access::m_version), m_version);
        });
    }
    ~Plugin() override = default;

    void load() override
    {
        m_row.forEach([this](OrvExtension& extension) { addExtension(&extension); });
        OrvPlugin::load();
    }

private:
    /// Only a derived class names the members.
    struct Access : OrvExtension {
        using OrvExtension::m_name;
        using OrvExtension::m_version;
    };

    static void complete(VbString& text, const VbString& standard)
    {
        if (text.isEmpty())
            text = standard;
    }

    ExtensionRow<Extensions...> m_row;
};

} // namespace orv

/// The plug-in of a library: its name, its version, and the classes of its extensions, of which it makes one each. Of
/// two editors of the same type, the docks show the one that is listed last. Stands once in the library, outside of
/// namespaces, in a source file. It defines the two functions that the tool calls.
///
///     ORV_PLUGIN("Lamps", "1.0.0", LampEditor, LampBar)
#define ORV_PLUGIN(name, version, ...)                                                                                 \
    namespace {                                                                                                        \
    orv::Plugin<__VA_ARGS__>* thePluginOfTheLibrary = nullptr;                                                         \
    }                                                                                                                  \
    extern "C" {                                                                                                       \
    __attribute__((visibility("default"))) OrvPlugin* loadPlugin();                                                    \
    __attribute__((visibility("default"))) void unloadPlugin();                                                        \
    OrvPlugin* loadPlugin()                                                                                            \
    {                                                                                                                  \
        thePluginOfTheLibrary = new orv::Plugin<__VA_ARGS__>(name, version, #__VA_ARGS__);                             \
        return thePluginOfTheLibrary;                                                                                  \
    }                                                                                                                  \
    void unloadPlugin()                                                                                                \
    {                                                                                                                  \
        delete std::exchange(thePluginOfTheLibrary, nullptr);                                                          \
    }                                                                                                                  \
    }
