#include "extender/broken/Broken.h"

#include "orvane/extender/OrvCommand.h"

#include "meridane/scene/fields/NxField.h"

namespace {

class Command : public OrvCommand {
public:
    void execute() override { OrvServices::getInstance()->pushCommand(new Command); }
    void undo() override { }
    void redo() override { }
};

class Extension : public Quiet<OrvExtension> {
public:
    void activate() override
    {
        Quiet::activate();
        connect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, [](const NxField* field) {
            if (field != nullptr)
                OrvServices::getInstance()->pushCommand(new Command);
        });
    }
    void deactivate() override
    {
        Quiet::deactivate();
        disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
    }
};

} // namespace

BROKEN_EXTENSION(Extension)
