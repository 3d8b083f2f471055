#include "data/types/FieldType.h"

#include <gtest/gtest.h>

namespace {

TEST(FieldType, DeclarationsReadBackAsTheFieldTheyWereMadeFrom) {
    for (const FieldType type : {FieldType::Boolean, FieldType::Byte, FieldType::Integer, FieldType::Long,
                                 FieldType::Currency, FieldType::Single, FieldType::Double, FieldType::Date,
                                 FieldType::Text, FieldType::Memo, FieldType::LongBinary}) {
        for (const bool zeroLength : {true, false}) {
            Field field;
            field.type = type;
            field.size = type == FieldType::Text ? 15 : 0;
            field.allowZeroLength = zeroLength || !isText(type);
            const auto back = fieldOfDeclaredType(declaredType(field));
            ASSERT_TRUE(back) << declaredType(field);
            EXPECT_EQ(back->type, field.type);
            EXPECT_EQ(back->size, field.size);
            EXPECT_EQ(back->allowZeroLength, field.allowZeroLength);
        }
    }
    EXPECT_FALSE(fieldOfDeclaredType("TEXT"));
    EXPECT_FALSE(fieldOfDeclaredType("TEXT(x)"));
}

} // namespace
