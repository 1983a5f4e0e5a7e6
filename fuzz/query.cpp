// Queries: each text is a query or has a message with a place in it. A query matches nodes, fields and rows, and the
// opposite of it the others. A text that is being typed is a query, or has a message; a complete one means the same.

#include "meridane/query/Query.h"

#include "Fuzz.h"

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <string>

using meridane::Query;
using meridane::QueryError;

namespace {

NxRef<NxGroup> makeScene()
{
    NxSceneReader reader("#mrd 1.0\n"
                         "Transform \"robot\" {\n  translation = 1 2 nan\n"
                         "  Material \"red / blue\" { ignored transparency = 0.5 }\n"
                         "  Mesh \"\xC3\x84rmel\" { positions = [0 0 0, 1 0 0, inf 1 0]; indices = [0, 1, 2] }\n"
                         "  PointLight { }\n}\nFieldGallery { }\nWidget \"w\" { unknown = 1 }\n",
        "sample");
    reader.run();
    NxRef<NxGroup> scene = reader.takeScene();
    fuzz::check(static_cast<bool>(scene), "the sample scene is read");
    return scene;
}

void checkMessage(const QueryError& error, std::size_t size)
{
    fuzz::check(!error.message.empty() && error.message.back() == '.', "an error has a message of whole sentences");
    fuzz::check(error.message.size() < 1500, "a message is short");
    fuzz::check(error.position <= size, "an error is at a place in the text");
}

void match(const Query& query, const Query& opposite, const NxGroup& scene)
{
    meridane::NodeTraversal nodes(scene);
    while (NxNode* const node = nodes.next()) {
        fuzz::check(query.matches(*node) != opposite.matches(*node), "the opposite matches the other nodes");
        for (const NxField* const field : node->getFields())
            fuzz::check(query.matches(*field) != opposite.matches(*field), "the opposite matches the other fields");
    }
}

/// A text that is being typed, and the same as a whole: null if that is wrong.
void checkDraft(std::string_view text, Query::Subject subject, const Query* whole, const NxGroup& scene)
{
    const meridane::QueryDraft draft = Query::parseDraft(text, subject);
    if (draft.error)
        checkMessage(*draft.error, text.size());
    if (draft.missing)
        checkMessage(*draft.missing, text.size());
    fuzz::check(!draft.error || draft.query.isEmpty(), "what is wrong is no query");
    meridane::NodeTraversal nodes(scene);
    while (const NxNode* const node = nodes.next()) {
        const bool isMatch = draft.query.matches(*node);
        const NxField* const field = draft.query.firstField(*node);
        fuzz::check(field == nullptr || draft.query.isAboutFields(), "only a query about fields finds one");
        if (whole != nullptr && !draft.missing)
            fuzz::check(isMatch == whole->matches(*node), "a complete text means the same while it is typed");
    }
    fuzz::check(whole == nullptr || !draft.error, "a query isn't wrong while it is typed");
    fuzz::check(whole != nullptr || draft.error || draft.missing, "what is wrong is wrong or incomplete while typed");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    static const NxRef<NxGroup> scene = makeScene();
    const std::string_view text = fuzz::toText(bytes, count);
    for (const Query::Subject subject : {Query::Subject::Scene, Query::Subject::Rows}) {
        const auto parsed = Query::parse(text, subject);
        checkDraft(text, subject, std::get_if<Query>(&parsed), *scene);
        if (const auto* const error = std::get_if<QueryError>(&parsed)) {
            checkMessage(*error, count);
            continue;
        }
        const auto& query = std::get<Query>(parsed);
        if (query.isEmpty())
            continue;
        const auto opposite = Query::parse("not (" + std::string(text) + ")", subject);
        if (std::holds_alternative<QueryError>(opposite))
            continue; // it is too long
        if (subject == Query::Subject::Scene)
            match(query, std::get<Query>(opposite), *scene);
        else
            fuzz::check(query.matchesText("Set arm.radius") != std::get<Query>(opposite).matchesText("Set arm.radius"),
                "the opposite matches the other rows");
    }
    return 0;
}
