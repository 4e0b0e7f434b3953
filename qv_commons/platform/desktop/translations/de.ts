<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>Neue Nachricht</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>An</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>Betreff</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>Ein Anhang wird gelesen …</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>Entwürfe</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>Und %1 mehr von diesem Text, die unverändert gesendet werden.</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>Anhang %1, %2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>(kein Betreff)</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>Diese Nachricht verwerfen?</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>Was Sie geschrieben haben, geht verloren, wenn Sie es nicht sichern.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>Weiter schreiben</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Sichern …</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Senden …</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Ihr Mailprogramm wird geöffnet …</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Gesichert in %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Nicht gesichert. %1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Nicht gesichert. Das Sichern wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>Abgebrochen. Ihre Nachricht ist noch da.</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>Ihre Nachricht ist noch da. %1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>Nicht geöffnet. Das Öffnen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>Es wurde abgebrochen. Ihr Mailprogramm öffnet sich vielleicht trotzdem.</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Das Senden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>Das Senden wurde abgebrochen. Die Nachricht ist vielleicht trotzdem gesendet worden.</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Nicht gesendet. %1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>Nicht gesendet. %1
Eine Kopie liegt in %2.</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>Nicht gesendet. %1
Es gibt keine Kopie: %2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Senden … Es gibt keine Kopie: %1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>Nicht übergeben. Es wurde kein Mailprogramm gewählt.</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Nicht an Ihr Mailprogramm übergeben. %1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Nicht an Ihr Mailprogramm übergeben. %1
Sie können die Nachricht von hier senden.</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>Dieser Computer hat kein Mailprogramm.</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>Der Mailserver hat die Adresse oder die Nachricht abgelehnt.</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>Der Mailserver ist zurzeit nicht erreichbar. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>Sie dürfen keine E-Mails senden.</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>E-Mail ist auf diesem Computer nicht eingerichtet.</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Das Mailprogramm ist mit dem Code %1 gescheitert.</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Das Mailprogramm %1 kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>Das Mailprogramm hat zu lange gebraucht und wurde beendet.</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>Das Mailprogramm ist abgestürzt.</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>Bitte geben Sie eine Adresse ein.</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>„%1“ ist keine E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>Die Adresse enthält einen Zeilenumbruch oder ein anderes Steuerzeichen. Bitte entfernen Sie es.</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>Der Betreff enthält einen Zeilenumbruch oder ein anderes Steuerzeichen. Bitte entfernen Sie es.</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>Der Name oder der Typ des Anhangs kann nicht gesendet werden.</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>Für die Nachricht ist kein Platz: %1.</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>Der Ordner %1 kann nicht beschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 ist keine E-Mail.</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>Das Mail-Portal des Desktops ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>Das Mail-Portal des Desktops meldet: %1.</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>Das Mail-Portal des Desktops konnte kein Mailprogramm öffnen.</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>Dieser Computer hat kein Mailprogramm, das xdg-email kennt.</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email konnte kein Mailprogramm öffnen.</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email ist mit dem Code %1 gescheitert.</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>xdg-email kann nicht gestartet werden.</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email ist abgestürzt.</translation>
    </message>
</context>
</TS>
