// SPDX-License-Identifier: Apache-2.0
// The language changes while everything is running.
var titles = {en: "General", de: "Allgemein", fr: "Général", es: "General", ja: "全般"};

open("audiosetting");
wait(200);
tap("key_return");
tap("tile_car");
for (var code in titles) {
    language("en");
    car();
    tap("car_language_" + code);
    expect("car_language_" + code, "checked", true);
    open("audiosetting");
    expect("Txt_title", "text", titles[code]);
    expect(get("text_Subwoofer", "text").length > 0);
}
