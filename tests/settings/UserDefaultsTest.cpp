// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/UserDefaults.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace {

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest() { platform::RunLoop::setMain(&loop); }
    ~UserDefaultsTest() override {
        defaults.reset();
        platform::RunLoop::setMain(nullptr);
    }

    ManualRunLoop loop;
    std::shared_ptr<MemorySettings::Disk> disk = std::make_shared<MemorySettings::Disk>();
    std::unique_ptr<platform::UserDefaults> defaults =
        std::make_unique<platform::UserDefaults>(std::make_unique<MemorySettings>(disk));
};

} // namespace

TEST_F(UserDefaultsTest, the_highest_layer_that_holds_a_key_answers) {
    EXPECT_FALSE(defaults->objectForKey("key").isValid());
    defaults->registerDefaults({{"key", 1}});
    EXPECT_EQ(defaults->integerForKey("key"), 1);
    defaults->setInteger(2, "key");
    EXPECT_EQ(defaults->integerForKey("key"), 2);
    defaults->setOverride("key", "3");
    EXPECT_EQ(defaults->integerForKey("key"), 3);
    defaults->synchronize();
    EXPECT_EQ(disk->domain, (QVariantMap{{"key", 2}}));

    // What the program sets by itself stays this run's; what the user chooses by hand is kept.
    defaults->setInteger(4, "key");
    EXPECT_EQ(defaults->integerForKey("key"), 4);
    defaults->removeObjectForKey("key");
    EXPECT_EQ(defaults->integerForKey("key"), 1);
    EXPECT_EQ(defaults->persistentDomain(), (QVariantMap{{"key", 2}}));
    defaults->setChosenObject(5, "key");
    EXPECT_EQ(defaults->integerForKey("key"), 5);
    EXPECT_EQ(defaults->persistentDomain(), (QVariantMap{{"key", 5}}));
    defaults->removeObjectForKey("key");
    EXPECT_EQ(defaults->integerForKey("key"), 1);
    EXPECT_FALSE(defaults->hasStoredValue("key"));
}

TEST_F(UserDefaultsTest, changes_are_written_together_a_second_after_the_first) {
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(disk->stores, 0) << "nothing has changed yet";
    defaults->setInteger(1, "a");
    loop.advance(0.9);
    defaults->setInteger(2, "a");
    EXPECT_EQ(disk->stores, 0);
    loop.advance(0.2);
    EXPECT_EQ(disk->stores, 1);
    EXPECT_EQ(disk->domain["a"], 2);
    defaults->setInteger(2, "a");
    loop.advance(10);
    EXPECT_EQ(disk->stores, 1) << "nothing had changed";
}

TEST_F(UserDefaultsTest, a_write_that_failed_is_tried_again) {
    disk->refuses = true;
    defaults->setInteger(1, "a");
    EXPECT_FALSE(defaults->synchronize());
    EXPECT_EQ(defaults->integerForKey("a"), 1);
    disk->refuses = false;
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(disk->domain["a"], 1);
    defaults->setInteger(2, "a");
    defaults.reset();
    EXPECT_EQ(disk->domain["a"], 2) << "what was not written yet is written at the end";
}

TEST_F(UserDefaultsTest, what_changes_while_it_is_written_is_written_afterwards) {
    struct SlowDisk final : MemorySettings {
        using MemorySettings::MemorySettings;
        std::vector<std::function<void(bool)>> waiting;
        void storeInBackground(const QVariantMap&, std::function<void(bool)> stored) override {
            waiting.push_back(std::move(stored));
        }
    };
    auto slow = std::make_unique<SlowDisk>(disk);
    auto& waiting = slow->waiting;
    defaults = std::make_unique<platform::UserDefaults>(std::move(slow));
    int failures = 0;
    defaults->setWriteFailureHandler([&] { ++failures; });
    defaults->setInteger(1, "a");
    loop.advance(1.1);
    ASSERT_EQ(waiting.size(), 1U);
    defaults->setInteger(2, "a");
    loop.advance(5);
    EXPECT_EQ(waiting.size(), 1U) << "one at a time";
    EXPECT_EQ(disk->stores, 0);
    waiting[0](true);
    loop.advance(1.1);
    ASSERT_EQ(waiting.size(), 2U);
    // Who wants it on the disk now does not rely on what may never end.
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(disk->domain["a"], 2);
    waiting[1](false);
    EXPECT_EQ(failures, 1);
    EXPECT_TRUE(defaults->synchronize());
    EXPECT_EQ(disk->stores, 2) << "it is tried again";
}

TEST_F(UserDefaultsTest, values_are_read_as_the_type_that_is_asked_for) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        QVariant value;
        bool flag;
        std::int32_t integer;
        float number;
    } cases[] = {{-2.9, true, -2, -2.9F},
                 {1e12, true, std::numeric_limits<std::int32_t>::max(), 1e12F},
                 {1e300, true, std::numeric_limits<std::int32_t>::max(), std::numeric_limits<float>::max()},
                 {nan, true, 0, 0},
                 {"yes", true, 0, 0},
                 {"no", false, 0, 0},
                 {" +1.5x", true, 1, 1.5F},
                 {"0", false, 0, 0},
                 {QVariantList{1}, false, 0, 0}};
    for (const auto& [value, flag, integer, number] : cases) {
        defaults->setObject(value, "key");
        EXPECT_EQ(defaults->boolForKey("key"), flag) << value.toString().toStdString();
        EXPECT_EQ(defaults->integerForKey("key"), integer) << value.toString().toStdString();
        EXPECT_EQ(defaults->floatForKey("key"), number) << value.toString().toStdString();
    }
}
