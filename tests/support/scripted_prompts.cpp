#include "tests/support/scripted_prompts.h"

#include <gtest/gtest.h>

namespace kel::test {

scripted_prompts::~scripted_prompts() {
    verify_done();
}

scripted_prompts& scripted_prompts::expect(const message& box) {
    return expect(box, answer::ok);
}

scripted_prompts& scripted_prompts::expect(const message& box, answer reply) {
    script_.push_back({.box = box, .reply = reply});
    return *this;
}

scripted_prompts& scripted_prompts::expect_list(const titled_list& list) {
    script_.push_back({.box = {"(list)", list.heading}, .list = list});
    return *this;
}

scripted_prompts& scripted_prompts::expect_file(const std::string& title, const std::string& path) {
    script_.push_back({.box = {title, {}}, .file = true, .path = path});
    return *this;
}

void scripted_prompts::verify_done() {
    for (const step& left : script_)
        ADD_FAILURE() << "expected, but never shown: [" << left.box.title << "] " << left.box.text;
    script_.clear();
}

answer scripted_prompts::ask(const message& box) {
    if (script_.empty() || script_.front().file || script_.front().list) {
        ADD_FAILURE() << "unexpected box: [" << box.title << "] " << box.text;
        return box.buttons == message_buttons::ok ? answer::ok : answer::no;
    }
    const step next = script_.front();
    script_.pop_front();
    EXPECT_EQ(next.box.title, box.title);
    EXPECT_EQ(next.box.text, box.text);
    EXPECT_EQ(next.box.kind, box.kind) << box.title;
    EXPECT_EQ(next.box.buttons, box.buttons) << box.title;
    return next.reply;
}

void scripted_prompts::show_list(const titled_list& list) {
    if (script_.empty() || !script_.front().list) {
        ADD_FAILURE() << "unexpected list: " << list.heading;
        return;
    }
    const titled_list expected = *script_.front().list;
    script_.pop_front();
    EXPECT_EQ(expected.heading, list.heading);
    EXPECT_EQ(expected.note, list.note);
    EXPECT_EQ(expected.rows, list.rows) << list.heading;
}

std::string scripted_prompts::file_chosen(const file_request& request) {
    if (script_.empty() || !script_.front().file) {
        ADD_FAILURE() << "unexpected file dialog: " << request.title;
        return {};
    }
    const step next = script_.front();
    script_.pop_front();
    EXPECT_EQ(next.box.title, request.title);
    last_folder_ = request.folder;
    return next.path;
}

std::string scripted_prompts::file_to_open(const file_request& request) {
    return file_chosen(request);
}
std::string scripted_prompts::file_to_save(const file_request& request) {
    return file_chosen(request);
}

}  // namespace kel::test
