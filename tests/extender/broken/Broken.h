#pragma once

#include "extender/plugins/LoadedPlugin.h"
#include "extender/plugins/OneExtensionPlugin.h"

#include "orvane/extender/OrvEditor.h"
#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"

/// An extension, or editor, that does nothing by itself.
template <typename Base>
class Quiet : public Base {
public:
    explicit Quiet(const char* name = "Broken") { Base::m_name = name; }

    void load() override { }
    void unload() override { }
};

/// Makes a class the plug-in of a library.
#define BROKEN_PLUGIN(...)                                                                                             \
    OrvPlugin* loadPlugin()                                                                                            \
    {                                                                                                                  \
        return LoadedPlugin<__VA_ARGS__>::make();                                                                      \
    }                                                                                                                  \
    void unloadPlugin()                                                                                                \
    {                                                                                                                  \
        LoadedPlugin<__VA_ARGS__>::destroy();                                                                          \
    }

/// Makes an extension the only one of a plug-in.
#define BROKEN_EXTENSION(Extension) BROKEN_PLUGIN(OneExtensionPlugin<Extension>)
