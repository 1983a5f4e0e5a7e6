#pragma once

#include "app/AppScenes.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/UpdateSceneCommand.h"
#include "orvane/app/structure/NodeEdit.h"

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <QObject>
#include <QTest>

#include <memory>
#include <string>

/// A test of changes of the structure in a session without a window.
class EditCase : public QObject {
protected:
    void startSession() { m_session = std::make_unique<Session>(AppSettings::Mode::None); }
    void endSession()
    {
        m_session.reset();
        AppScenes::runSensors();
    }

    /// Opens a scene of these statements.
    void open(const std::string& statements)
    {
        m_session->document().open(AppScenes::read(("#mrd 1.0\n" + statements).c_str()), {});
    }
    [[nodiscard]] NxGroup& scene() { return *m_session->document().scene(); }
    [[nodiscard]] std::string text() { return NxSceneWriter::toText(&scene()); }

    /// The node of that name, in the first place that it has, as a set of its own.
    [[nodiscard]] meridane::NodeSet setOf(std::initializer_list<const char*> names)
    {
        meridane::NodeSet set;
        for (const char* const name : names) {
            meridane::NodeTraversal nodes(scene());
            const NxNode* node = nodes.next();
            while (node != nullptr && node->getName() != VbString(name))
                node = nodes.next();
            if (node == nullptr)
                qFatal("no node %s", name);
            meridane::NodeRows rows{{&scene()}, {}, {nodes.indices().back()}};
            const auto path = nodes.path();
            const auto places = nodes.indices();
            for (std::size_t i = 0; i + 1 < path.size(); ++i) {
                rows.path.push_back(static_cast<NxGroup*>(path[i]));
                rows.places.push_back(places[i]);
            }
            set.push_back(std::move(rows));
        }
        return set;
    }
    [[nodiscard]] NxNode* node(const char* name) { return &setOf({name}).front().first(); }
    /// The end of a group, or of the scene for null.
    [[nodiscard]] NodeSpot endOf(const char* name)
    {
        if (name == nullptr)
            return {{&scene()}, {}, scene().getNumChildren()};
        const meridane::NodeRows rows = setOf({name}).front();
        auto* const group = static_cast<NxGroup*>(rows.group().getChild(rows.rows.front()));
        NodeSpot spot{rows.path, rows.places, group->getNumChildren()};
        spot.path.push_back(group);
        spot.places.push_back(rows.rows.front());
        return spot;
    }

    /// Makes the change as a step. The result is its message if nothing can be done.
    QString apply(MadeEdit edit)
    {
        if (!edit)
            return edit.error();
        m_label = edit.value().label;
        m_note = edit.value().note;
        m_selection = edit.value().selection;
        m_session->services().pushStep(new UpdateSceneCommand(edit.value().changes, UpdateSceneCommand::Undo::ByHistory,
                                           m_session->disposal(), std::make_shared<bool>(true)),
            m_label);
        return {};
    }

    /// What a step does, and that undo and redo lead exactly there and back.
    void check(MadeEdit edit, const std::string& expected)
    {
        const std::string before = text();
        QCOMPARE(apply(std::move(edit)), QString());
        QCOMPARE(QString::fromStdString(text()), QString::fromStdString(textOf(expected)));
        m_session->services().undo();
        QCOMPARE(QString::fromStdString(text()), QString::fromStdString(before));
        m_session->services().redo();
        QCOMPARE(QString::fromStdString(text()), QString::fromStdString(textOf(expected)));
    }

    static std::string textOf(const std::string& statements)
    {
        const NxRef<NxGroup> scene = AppScenes::read(("#mrd 1.0\n" + statements).c_str());
        return scene ? NxSceneWriter::toText(scene.get()) : "not readable: " + statements;
    }

    std::unique_ptr<Session> m_session;
    QString m_label;
    QString m_note;
    meridane::NodeSet m_selection;
};
