#pragma once

class QWidget;

/// Opens the dock of the panel, if it is in one, and brings it to the front.
void showPanel(QWidget &panel);

/// Shows the panel and gives the focus to its proxy, else to where the focus last was in the panel,
/// else to the first widget that takes it. Where there is none the focus stays.
void goToPanel(QWidget &panel);
