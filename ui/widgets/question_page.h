// A page of a module that asks one question before its tables: option buttons of which one is chosen, and a
// row of commands beneath. Enter among the options confirms.
#pragma once

#include <QWidget>
#include <optional>
#include <string>
#include <vector>

class QBoxLayout;

namespace kel {

class options_editor;

class question_page : public QWidget {
    Q_OBJECT

  public:
    /// `name` stands in the object names: fraGrass_rain, and optGrass_rain_1 and so on for the options.
    question_page(const QString& name, const QString& question, const std::vector<std::string>& choices,
                  QWidget* parent);

    /// Chooses the option of this place, or none.
    void set_answer(std::optional<int> place);
    std::optional<int> answer() const;
    void take_focus();
    /// Where the screen puts its commands.
    QBoxLayout* command_row() const { return commands_; }

  signals:
    void confirmed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    std::vector<std::string> choices_;
    options_editor* options_;
    QBoxLayout* commands_;
};

}  // namespace kel
