#include "tests/views/startedProgram.h"

namespace {

using RegisterWindow = StartedProgram;

TEST_F(RegisterWindow, shows_each_register_in_hexadecimal_and_binary) {
    start();
    setMemoryWord(machine(), reg::c2crLow, 0x5AA3);
    fire();
    EXPECT_EQ(registers().cell(7, frmRegister::valHigh).text(), "5A");
    EXPECT_EQ(registers().cell(7, frmRegister::valLow).text(), "A3");
    EXPECT_EQ(registers().cell(7, frmRegister::binHigh).text(), " 0101_1010");
    EXPECT_EQ(registers().cell(7, frmRegister::binLow).text(), "1010_0011");
    EXPECT_EQ(registers().cell(9, frmRegister::binHigh).text(), " 0000_0000");
    EXPECT_EQ(colours(8), "bbbb") << "the value after the reset is no change";
}

TEST_F(RegisterWindow, a_change_stays_red_for_four_firings_of_its_timer) {
    start();
    fire();
    EXPECT_EQ(registers().timRegister().interval(), 1000);
    for (int second = 0; second < 4; ++second) {
        registers().timRegister().fire();
    }
    ASSERT_EQ(colours(1), "bbbb");
    machine().chipMemory[reg::c1crLow] = 7;
    fire();
    EXPECT_EQ(colours(6), "brbr");
    for (int second = 1; second <= 3; ++second) {
        registers().timRegister().fire();
        EXPECT_EQ(colours(6), "brbr") << "second " << second;
    }
    machine().chipMemory[reg::c1crLow] = 8;
    fire();  // the time starts anew
    registers().timRegister().fire();
    EXPECT_EQ(colours(6), "brbr");
    for (int second = 2; second <= 4; ++second) {
        registers().timRegister().fire();
    }
    EXPECT_EQ(colours(6), "bbbb");
}

TEST_F(RegisterWindow, the_low_byte_of_ssr_follows_the_scan_in_black) {
    start();
    fire();
    const QString before = registers().cell(rowSSR, frmRegister::valLow).text();
    fire();
    EXPECT_NE(registers().cell(rowSSR, frmRegister::valLow).text(), before);
    EXPECT_EQ(colours(rowSSR), "bbbb");
    machine().chipMemory[reg::ssrHigh] = 2;
    registers().refreshRegisters();
    EXPECT_EQ(colours(rowSSR), "rbrb");
}

// Cells keep what they have drawn: the same text in the other colour, and a text that comes back, are drawn as they are.
TEST_F(RegisterWindow, paints_what_a_cell_says) {
    start();
    RegisterCell cell("00", Qt::white, nullptr);
    cell.resize(30, 18);
    const auto picture = [&cell](const QString& text, bool red) {
        cell.show(text, red);
        return cell.grab().toImage();
    };
    const auto holds = [](const QImage& image, const auto& colour) {
        for (int pixel = 0; pixel < image.width() * image.height(); ++pixel) {
            if (colour(image.pixelColor(pixel % image.width(), pixel / image.width()))) {
                return true;
            }
        }
        return false;
    };
    const auto reddish = [](const QColor& colour) { return colour.red() > colour.blue() + 100; };
    const QImage black = picture("00", false);
    const QImage red = picture("00", true);
    EXPECT_FALSE(holds(black, reddish));
    EXPECT_TRUE(holds(red, reddish));
    for (int value = 1; value < 200; ++value) {
        EXPECT_NE(picture(QString::number(value), false), black) << value;
    }
    EXPECT_EQ(picture("00", false), black);
    EXPECT_EQ(picture("00", true), red);
}

TEST_F(RegisterWindow, shows_as_changed_what_moved_while_it_was_away) {
    start();
    fire();
    registers().close();
    machine().chipMemory[reg::c1crLow] = 3;
    fire();
    QTest::mouseClick(&main().label(Tool::registerWindow), Qt::LeftButton);
    EXPECT_EQ(colours(6), "brbr");
    EXPECT_EQ(registers().cell(6, frmRegister::valLow).text(), "03");
}

TEST_F(RegisterWindow, status_and_protected_registers_do_not_open) {
    start();
    fire();
    for (std::size_t column = 0; column < 4; ++column) {
        program->aids().hideMessage();
        open(rowSSR, column);
        EXPECT_EQ(popupText(), "このレジスタはリードオンリーです。");
        open(rowBCR, column);
        EXPECT_EQ(popupText(), "スキャン中はライトプロテクト。");
        EXPECT_FALSE(isUp(program->registers().writeDialog()));
    }
    machine().scanRunning = false;
    open(rowBCR, frmRegister::valLow);
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_EQ(popupText(), "") << "the dialog takes the popup away";
}

TEST_F(RegisterWindow, the_dialog_shows_the_bus_address_of_what_is_written) {
    start();
    setMemoryWord(machine(), reg::c1crLow, 0x12AB);
    struct Row {
        int cpuType;
        std::size_t column;
        bool chooseByte;
        const char* dialog;
        const char* red;
    };
    constexpr auto high = frmRegister::valHigh;
    constexpr auto low = frmRegister::binLow;
    for (const Row& row :
         {Row{0, high, false, "58AH C1CR 15-0 bit 15-0 12AB", "rrrr"}, Row{0, high, true, "58BH C1CR 15-8 bit 15-8 12", "rbrb"},
          Row{1, low, false, "58AH C1CR 7-0 bit 7-0 AB", "brbr"}, Row{2, low, true, "58BH C1CR 7-0 bit 7-0 AB", "brbr"},
          Row{3, high, false, "58AH C1CR 15-8 bit 15-8 12", "rbrb"}}) {
        SCOPED_TRACE(std::string(row.dialog) + " on bus " + std::to_string(row.cpuType));
        machine().cpuType = static_cast<std::int16_t>(row.cpuType);
        open(6, row.column);
        EXPECT_EQ(option(0).isEnabled(), row.cpuType % 2 == 0);
        EXPECT_TRUE(option(row.cpuType % 2).isChecked());
        if (row.chooseByte) {
            option(1).click();
        }
        EXPECT_EQ(text("lblAdr") + " " + text("lblBitInd") + " " + field().text(), row.dialog);
        EXPECT_EQ(field().selectedText().size(), 1);
        EXPECT_EQ(colours(6), row.red);
        QTest::keyClick(&dialog(), Qt::Key_Escape);
        EXPECT_FALSE(isUp(program->registers().writeDialog()));
        EXPECT_EQ(colours(6), "bbbb");
    }
    EXPECT_EQ(memoryWord(machine(), reg::c1crLow), 0x12AB) << "cancel writes nothing";
    machine().cpuType = 0;
    setMemoryWord(machine(), 0, 0xBEEF);
    open(9, low);
    EXPECT_EQ(text("lblAdr") + " " + field().text(), "000H CC 15-0 BEEF") << "the row without a register";
    QTest::keyClicks(&field(), "1234");
    QTest::keyClick(&field(), Qt::Key_Return);
    EXPECT_EQ(memoryWord(machine(), 0), 0xBEEF);
}

TEST_F(RegisterWindow, a_written_value_ends_black_and_a_refused_one_is_said) {
    start();
    fire();
    write(rowHPR, frmRegister::valHigh, "ffff");
    EXPECT_EQ(registers().cell(rowHPR, frmRegister::valHigh).text(), "10") << "what the register keeps of it";
    EXPECT_EQ(colours(rowHPR), "bbbb");
    EXPECT_EQ(popupText(), "");
    write(1, frmRegister::valLow, "0404");
    EXPECT_EQ(popupText(), "入力された値が不適切であるため、書き込まれません。");
    EXPECT_EQ(memoryWord(machine(), reg::scrLow), 0x0004);
}

}  // namespace
