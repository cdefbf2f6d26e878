import Tessivo

// The title of a new event.
TitleFrame {}
