#include "storage/store_form.h"

#include "core/numbers.h"

namespace kel {

offered_boxes boxes_of_shape(std::string_view shape) {
    const auto found = find_store_shape(shape);
    if (!found) return {};
    const bool circular = *found == store_shape::circular;
    return {.depth = true,
            .length_and_width = !circular,
            .diameter = circular,
            .angle = *found == store_shape::lagoon};
}

store_form choose_shape(store_form form, std::string_view shape) {
    const bool area_follows = !form.length.empty() || !form.width.empty() || !form.diameter.empty();
    form.shape = shape;
    for (std::string* box : {&form.depth, &form.length, &form.width, &form.diameter, &form.angle})
        box->clear();
    if (area_follows) form.area = auto_area(form);
    const auto found = find_store_shape(shape);
    if (found && *found != store_shape::rectangular) form.percent = "0";
    return form;
}

std::string auto_area(const store_form& form) {
    const auto shape = find_store_shape(form.shape);
    return shape ? auto_area(*shape, size_of(form)) : form.area;
}

store_size size_of(const store_form& form) {
    return {
        .depth_m = leading_number(form.depth),
        .length_m = leading_number(form.length),
        .width_m = leading_number(form.width),
        .diameter_m = leading_number(form.diameter),
        .bank_angle_degrees = leading_number(form.angle),
    };
}

}  // namespace kel
