// The windows' own keys by sign and by place, and what is said.
#include "shell/front_commands.h"

#include <gtest/gtest.h>

#include "platform/keys.h"

namespace {

TEST(FrontCommandsTest, KeysAreTakenBySignOrPlaceWithTheirModifiersAlone) {
    struct Case {
        KeyInput key;
        std::optional<FrontCommand> command;
    };
    const Case cases[] = {
        {{.code = EqualKey, .sign = '+', .shift = ControlHeld | ShiftHeld}, FrontCommand::Larger},
        {{.code = CloseBracketKey, .sign = '+', .shift = ControlHeld}, FrontCommand::Larger},
        {{.code = Pad0Key, .sign = '0', .shift = ControlHeld}, FrontCommand::Fit},
        {{.code = 'M', .shift = ControlHeld}, FrontCommand::Mute},
        {{.code = 'M', .sign = 'M', .shift = ControlHeld | ShiftHeld}, std::nullopt},
        {{.code = F1Key, .isMetaHeld = true}, std::nullopt},
        {{.code = UpKey, .shift = ControlHeld}, std::nullopt},
        {{}, std::nullopt},
    };
    for (const Case& row : cases) {
        const std::optional<FrontKey> found = FrontKeyOf(row.key);
        ASSERT_EQ(found.has_value(), row.command.has_value()) << row.key.code << row.key.sign;
        if (found.has_value()) {
            EXPECT_EQ(found->command, *row.command) << row.key.code << row.key.sign;
        }
    }
}

TEST(FrontCommandsTest, NotesSayWhatIsSetNow) {
    const Settings soft = AfterCommand(FrontCommand::Softer, {.volume = 5, .muted = true});
    EXPECT_EQ(LoudnessNote(soft), "Sound off");
    EXPECT_EQ(LoudnessNote(AfterCommand(FrontCommand::Mute, soft)), "Volume 0 %");
    EXPECT_EQ(LoudnessNote(AfterCommand(FrontCommand::Louder, soft)), "Volume 10 %");
    EXPECT_EQ(SizeNote(SizeRemark::None, 1.5), "Size 1.5");
    EXPECT_EQ(SizeNote(SizeRemark::Fits, 4), "Size 4, as large as fits");
}

}  // namespace
