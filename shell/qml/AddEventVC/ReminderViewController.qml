import Tessivo

// Whether a new event reminds, when, and in what words.
ReminderFrame {}
