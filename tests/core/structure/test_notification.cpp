#include <memory>

#include <gmock/gmock.h>

#include "structure_fixture.h"

namespace tern7::test {

namespace {

/// Writes down what it is told; refers to one field, as a query does.
class TWitness : public TDSObserver {
public:
    explicit TWitness(TKCustomDBStructure& observed) : structure(&observed) {
        structure->AddObserver(this);
    }
    ~TWitness() override {
        if (structure) structure->RemoveObserver(this);
    }

    void ReleaseReferences() override {
        log += 'r';
        if (field) id = field->ID();
        field = nullptr;
    }
    void RestoreReferences() override {
        log += 'R';
        field = structure->FieldByID(id);
    }
    void StructureChanged() override {
        log += 'c';
        if (whenChanged) whenChanged();
    }
    void StructureDestroyed() override {
        log += 'd';
        structure = nullptr;
    }
    std::string Take() { return std::exchange(log, {}); }

    std::string log;
    const TDSField* field = nullptr;
    int id = -1;
    std::function<void()> whenChanged;
    TKCustomDBStructure* structure;
};

} // namespace

TEST(Notification, OncePerOutermostUpdate) {
    TKCustomDBStructure structure;
    int changes = 0;
    structure.OnChange = [&](TKCustomDBStructure&) { ++changes; };
    MakeSales(structure);
    changes = 0;
    const uint64_t revision = structure.Revision();
    {
        TDSUpdate outer(structure);
        {
            TDSUpdate inner(structure);
            structure.GetField(0)->SetDisplayName("a");
        }
        structure.GetField(1)->SetDisplayName("b");
        EXPECT_EQ(changes, 0);
        EXPECT_GT(structure.Revision(), revision);
    }
    EXPECT_EQ(changes, 1);
    {
        TDSUpdate nothing(structure);
        structure.GetField(0)->SetDisplayName("a");
    }
    EXPECT_EQ(changes, 1) << "the same value is no change";
    for (auto change : std::initializer_list<std::function<void()>>{
             [&] { structure.DelTable(0); }, [&] { structure.SetExOperators({}); },
             [&] { structure.SetStructString(structure.GetStructString()); },
             [&] { structure.ClearStructure(); }}) {
        changes = 0;
        change();
        EXPECT_EQ(changes, 1);
    }
    EXPECT_THROW(
        {
            structure.OnChange = [](TKCustomDBStructure&) { throw std::runtime_error("handler"); };
            TDSUpdate update(structure);
            structure.Changed();
        },
        std::runtime_error);
}

TEST(Notification, ReferencesAreReleasedAroundEveryDeletion) {
    TKCustomDBStructure structure;
    MakeSales(structure);
    TWitness witness(structure);
    witness.field = structure.GetField(5);
    const struct {
        const char* log;
        std::function<void()> change;
    } cases[] = {
        {"c", [&] { structure.GetField(0)->SetFieldSize(9); }},
        {"rRc", [&] { structure.DelField(1); }},
        {"rRc", [&] { structure.DelTable(0); }},
        {"rRc", [&] { structure.DelOperator(0); }},
        {"rRc", [&] { structure.DelLink(0); }},
        {"rRc", [&] { structure.SetStructString(structure.GetStructString()); }},
    };
    for (const auto& each : cases) {
        each.change();
        EXPECT_EQ(witness.Take(), each.log);
        EXPECT_EQ(witness.field, structure.FieldByID(6));
    }
    EXPECT_THROW(structure.SetStructString("[Main]\nTableCount=1"), EKDBStructError);
    EXPECT_EQ(witness.Take(), "");
    structure.ClearStructure();
    EXPECT_EQ(witness.Take(), "rRc");
    EXPECT_EQ(witness.field, nullptr);
}

TEST(Notification, HandlersMayDeleteWhatCallsThem) {
    auto structure = std::make_unique<TKCustomDBStructure>();
    MakeSales(*structure);
    TWitness first(*structure), second(*structure), third(*structure);
    first.whenChanged = [&] { first.structure->RemoveObserver(&second); };
    structure->GetField(0)->SetFieldSize(3);
    EXPECT_EQ(first.log + second.log + third.log, "cc");
    second.structure = nullptr;

    first.whenChanged = [&] {
        first.whenChanged = nullptr;
        structure->DelField(0); // the field whose setter is still under way
    };
    structure->GetField(0)->SetDisplayName("gone");
    EXPECT_EQ(structure->GetFieldCount(), 5);

    third.Take();
    first.whenChanged = [&] { structure.reset(); };
    structure->GetTable(0)->SetHints("last words");
    EXPECT_EQ(third.Take(), "rd") << "told of the end, and of nothing after it";
    EXPECT_EQ(first.structure, nullptr);
}

TEST(Services, WithoutAScreenNothingIsAskedOrEdited) {
    TKCustomDBStructure structure;
    EXPECT_FALSE(Ask(structure.Services, "Delete table?"));
    EXPECT_FALSE(structure.EditStructure());
    std::string asked;
    structure.Services.ask = [&](std::string_view question) {
        asked = question;
        return asked == "Delete table?";
    };
    structure.Services.editStructure = [](TKCustomDBStructure& edited) {
        return edited.AddTable("t", "T") != nullptr;
    };
    EXPECT_TRUE(Ask(structure.Services, "Delete table?"));
    EXPECT_FALSE(Ask(structure.Services, "Clear Structure?"));
    EXPECT_TRUE(structure.EditStructure());
    EXPECT_EQ(structure.GetTableCount(), 1);
}

} // namespace tern7::test
