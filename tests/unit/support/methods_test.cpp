// The table of the methods.

#include "methods/method.h"

#include <gmock/gmock.h>

namespace calvix::test::methods_test
{
namespace
{

TEST(MethodTable, HasEveryExportedMethodOnce)
{
    std::vector<std::string> declarations;
    for (const methods::Method& method : methods::EveryMethod())
        declarations.push_back(method.declaration);
    EXPECT_THAT(declarations, ::testing::UnorderedElementsAreArray(methods::ExportedMethods()));
}

} // namespace
} // namespace calvix::test::methods_test
