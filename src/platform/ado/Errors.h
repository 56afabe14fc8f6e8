#pragma once
// Sentences for what the engine refuses.

#include "platform/ado/Ado.h"
#include "platform/ado/Engine.h"
#include "platform/jet/Translate.h"

namespace varnik::ado {

DataError Explain(const EngineError& error, const std::filesystem::path& file, const jet::Catalog& catalog);

// Runs the body; what the engine refuses in it comes out as DataError.
template <typename Body>
auto Explained(const std::filesystem::path& file, const jet::Catalog& catalog, Body body) {
    try {
        return body();
    } catch (const EngineError& error) {
        throw Explain(error, file, catalog);
    } catch (const jet::SyntaxError& error) {
        throw DataError(SyntaxFault, error.what());
    }
}

} // namespace varnik::ado
