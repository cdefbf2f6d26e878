import Tessivo

// Another reminder for an event, or none.
ReminderFrame {}
