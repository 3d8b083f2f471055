#include "data/schema/Vocabulary.h"

#include "data/engine/Database.h"
#include "data/schema/VocabularyBuilder.h"
#include "data/types/Value.h"

#include <algorithm>
#include <stdexcept>

const std::vector<VocabularyTable>& tableVocabulary() {
    static const std::vector<VocabularyTable> tables = [] {
        std::vector<VocabularyTable> all;
        for (const auto& part :
             {vocabulary::projectTables(), vocabulary::systemMapTables(), vocabulary::customerGroupTables()})
            all.insert(all.end(), part.begin(), part.end());
        return all;
    }();
    return tables;
}

const TableDef& vocabularyTable(DatabaseKind database, std::string_view name) {
    const auto& tables = tableVocabulary();
    const auto found = std::find_if(tables.begin(), tables.end(), [&](const VocabularyTable& table) {
        return table.database == database && equalText(table.definition.name, name);
    });
    if (found == tables.end())
        throw std::out_of_range("no table of the vocabulary: " + std::string(name));
    return found->definition;
}

void createVocabularyTable(Database& database, DatabaseKind kind, std::string_view name) {
    database.tableDefs().append(vocabularyTable(kind, name));
}
