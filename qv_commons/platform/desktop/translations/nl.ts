<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>Nieuw bericht</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>Annuleer</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>Stuur</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>Aan</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>Onderwerp</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>Een bijlage wordt gelezen…</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>Bewaar</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>Concepten</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>En nog %1 van deze tekst, die ongewijzigd worden verstuurd.</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>Bijlage %1, %2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>(geen onderwerp)</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>Dit bericht weggooien?</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>Wat u hebt geschreven gaat verloren als u het niet bewaart.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>Gooi weg</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>Schrijf verder</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Bewaren…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Versturen…</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>Openen…</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Uw mailprogramma wordt geopend…</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Bewaard in %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Niet bewaard. %1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Niet bewaard. Het bewaren is gestopt.</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>Gestopt. Uw bericht is er nog.</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>Uw bericht is er nog. %1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>Niet geopend. Het openen is gestopt.</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>Het is gestopt. Uw mailprogramma kan toch nog opengaan.</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Het versturen is gestopt.</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>Het versturen is gestopt. Het bericht kan toch verstuurd zijn.</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Niet verstuurd. %1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>Niet verstuurd. %1
Er staat een kopie in %2.</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>Niet verstuurd. %1
Er is geen kopie bewaard: %2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Versturen… Er is geen kopie bewaard: %1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>Niet doorgegeven. Er is geen mailprogramma gekozen.</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Niet doorgegeven aan uw mailprogramma. %1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Niet doorgegeven aan uw mailprogramma. %1
U kunt het bericht hiervandaan versturen.</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>Deze computer heeft geen mailprogramma.</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>De mailserver heeft het adres of het bericht geweigerd.</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>De mailserver is op dit moment niet bereikbaar. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>U mag geen e-mail versturen.</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>E-mail is niet ingesteld op deze computer.</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Het mailprogramma is mislukt met code %1.</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Het mailprogramma %1 kan niet worden gestart.</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>Het mailprogramma deed er te lang over en is beëindigd.</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>Het mailprogramma is vastgelopen.</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>Vul een adres in om naar te versturen.</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>‘%1’ is geen e-mailadres.</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>Het adres bevat een regeleinde of een ander stuurteken. Verwijder dat alstublieft.</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>Het onderwerp bevat een regeleinde of een ander stuurteken. Verwijder dat alstublieft.</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>De naam of het type van de bijlage kan niet worden verstuurd.</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>Er is geen ruimte voor het bericht: %1.</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>De map %1 kan niet worden gemaakt: %2.</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>In de map %1 kan niet worden geschreven: %2.</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 kan niet worden geschreven: %2.</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>%1 kan niet worden gelezen: %2.</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 is geen e-mail.</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>Het mailportaal van het bureaublad is er niet meer.</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>Het mailportaal van het bureaublad meldt: %1.</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>Het mailportaal van het bureaublad kon geen mailprogramma openen.</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>Deze computer heeft geen mailprogramma dat xdg-email kent.</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email kon geen mailprogramma openen.</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email is mislukt met code %1.</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>xdg-email kan niet worden gestart.</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email is vastgelopen.</translation>
    </message>
</context>
</TS>
