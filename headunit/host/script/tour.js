// The tour: each screen, in each state worth seeing.
shot("home_en.png", "Home screen");
