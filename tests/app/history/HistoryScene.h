#pragma once

#include "extender/HistoryWalk.h"

#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QString>

#include <memory>

/// Services with an open scene: a group "arm" that holds a field gallery "hand".
class HistoryScene {
public:
    HistoryScene()
    {
        m_scene = new NxGroup;
        m_arm = new NxGroup;
        m_hand = new NxFieldGallery;
        m_arm->setName("arm");
        m_hand->setName("hand");
        m_scene->addChild(m_arm.get());
        m_arm->addChild(m_hand.get());
        m_services.document().open(OrvDocument::makeJournal(*m_scene));
    }
    HistoryScene(const HistoryScene&) = delete;
    HistoryScene& operator=(const HistoryScene&) = delete;
    ~HistoryScene() { m_services.document().close(); }

    [[nodiscard]] OrvServices& services() { return m_services; }
    [[nodiscard]] NxGroup& scene() { return *m_scene; }
    [[nodiscard]] NxGroup& arm() { return *m_arm; }
    [[nodiscard]] NxFieldGallery& hand() { return *m_hand; }

    /// Ends the step of what was written.
    void finish() { HistoryWalk::settle(); }
    /// Steps that set the hand's sfInt32 to the numbers from 1 on.
    void setNumbers(int last)
    {
        for (int value = 1; value <= last; ++value) {
            hand().sfInt32.setValue(value);
            finish();
        }
    }
    /// A step that sets a field from its text form.
    void set(NxField& field, const char* text)
    {
        QVERIFY(field.set(text));
        finish();
    }
    void goTo(int position)
    {
        while (m_services.undoDepth() > position)
            m_services.undo();
        while (m_services.undoDepth() < position)
            m_services.redo();
        finish();
    }

private:
    OrvServices m_services;
    NxRef<NxGroup> m_scene;
    NxRef<NxGroup> m_arm;
    NxRef<NxFieldGallery> m_hand;
};
