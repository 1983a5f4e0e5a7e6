#include "TrialScene.h"

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <algorithm>

std::vector<NxType> TrialScene::nodeClasses()
{
    std::vector<NxType> classes = NxType::getAllDerivedFrom(NxNode::getClassTypeId());
    std::erase_if(classes, [](NxType type) { return !type.canCreateInstance(); });
    return classes;
}

TrialScene::TrialScene(const std::vector<NxType>& classes)
    : m_root(new NxGroup)
{
    m_root->addChild(new NxFieldGallery);
    for (const NxType type : classes) {
        if (!type.isDerivedFrom(NxNode::getClassTypeId()) || !type.canCreateInstance())
            continue;
        if (const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
            node)
            m_root->addChild(node.get());
    }
}

std::vector<NxTypedObject*> TrialScene::objectsOf(NxType type) const
{
    std::vector<NxTypedObject*> found;
    const auto consider = [&](NxTypedObject* object) {
        if (object->isOfType(type))
            found.push_back(object);
    };
    for (NxNode* const node : m_root->getChildren()) {
        consider(node);
        for (NxField* const field : node->getFields())
            consider(field);
    }
    return found;
}

std::string TrialScene::text() const
{
    return NxSceneWriter::toText(m_root.get());
}

std::string TrialScene::readAgain(const std::string& text, QString& failure)
{
    NxSceneReader reader(text, "scene");
    if (reader.run() != NxSceneReader::State::Done) {
        failure = QString::fromStdString(reader.failure().text());
        return {};
    }
    const NxRef<NxGroup> scene = reader.takeScene();
    return NxSceneWriter::toText(scene.get());
}
