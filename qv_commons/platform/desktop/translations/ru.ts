<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- Not read by a native speaker. -->
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>qv_commons</name>
    <message>
        <source>New message</source>
        <extracomment>Title of the composer</extracomment>
        <translation>Новое письмо</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the composer</extracomment>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button</extracomment>
        <translation>Отправить</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that ends what goes on</extracomment>
        <translation>Стоп</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the composer once all is done</extracomment>
        <translation>Готово</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>Whom the message is for; a field's caption</extracomment>
        <translation>Кому</translation>
    </message>
    <message>
        <source>Subject</source>
        <extracomment>A field's caption</extracomment>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>A field's caption</extracomment>
        <translation>Письмо</translation>
    </message>
    <message>
        <source>Progress</source>
        <extracomment>Heard, not seen: a progress bar's name</extracomment>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>An attachment is being read…</source>
        <translation>Читается вложение…</translation>
    </message>
    <message>
        <source>Save draft</source>
        <extracomment>Button</extracomment>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Open a draft</source>
        <extracomment>Button with a menu of drafts</extracomment>
        <translation>Черновики</translation>
    </message>
    <message>
        <source>And %1 more of this text, which are sent as they are.</source>
        <extracomment>%1 is a size, for example 12 kB</extracomment>
        <translation>И ещё %1 этого текста, которые отправятся без изменений.</translation>
    </message>
    <message>
        <source>Attachment %1, %2</source>
        <extracomment>Heard, not seen: %1 is a file's name, %2 its size</extracomment>
        <translation>Вложение %1, %2</translation>
    </message>
    <message>
        <source>(no subject)</source>
        <extracomment>In the menu of drafts</extracomment>
        <translation>(без темы)</translation>
    </message>
    <message>
        <source>Discard this message?</source>
        <extracomment>Asked before the composer is closed</extracomment>
        <translation>Удалить это письмо?</translation>
    </message>
    <message>
        <source>What you have written is lost unless you save it.</source>
        <extracomment>Below that question</extracomment>
        <translation>Написанное пропадёт, если его не сохранить.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button: close, and lose what was written</extracomment>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Keep writing</source>
        <extracomment>Button: back to the composer</extracomment>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Saving…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Сохранение…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Отправка…</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>A draft; in the composer, while it is so</extracomment>
        <translation>Открытие…</translation>
    </message>
    <message>
        <source>Opening your mail program…</source>
        <extracomment>In the composer, while it is so</extracomment>
        <translation>Открывается почтовая программа…</translation>
    </message>
    <message>
        <source>Saved to %1</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Сохранено в %1</translation>
    </message>
    <message>
        <source>Not saved. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Не сохранено. %1</translation>
    </message>
    <message>
        <source>Not saved. Saving was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Не сохранено. Сохранение остановлено.</translation>
    </message>
    <message>
        <source>Stopped. Your message is still here.</source>
        <extracomment>By the user</extracomment>
        <translation>Остановлено. Ваше письмо по-прежнему здесь.</translation>
    </message>
    <message>
        <source>Your message is still here. %1</source>
        <extracomment>Another draft was not opened; %1 is another of these sentences, which says why</extracomment>
        <translation>Ваше письмо по-прежнему здесь. %1</translation>
    </message>
    <message>
        <source>Not opened. Opening was stopped.</source>
        <extracomment>A draft; by the user</extracomment>
        <translation>Не открыто. Открытие остановлено.</translation>
    </message>
    <message>
        <source>It was stopped. Your mail program may open all the same.</source>
        <extracomment>The handing over to it; by the user</extracomment>
        <translation>Остановлено. Почтовая программа всё же может открыться.</translation>
    </message>
    <message>
        <source>Sending was stopped.</source>
        <extracomment>By the user</extracomment>
        <translation>Отправка остановлена.</translation>
    </message>
    <message>
        <source>Sending was stopped. The message may have been sent all the same.</source>
        <extracomment>By the user</extracomment>
        <translation>Отправка остановлена. Письмо всё же могло быть отправлено.</translation>
    </message>
    <message>
        <source>Not sent. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Не отправлено. %1</translation>
    </message>
    <message>
        <source>Not sent. %1
A copy is kept as %2.</source>
        <extracomment>%1 is another of these sentences, which says why; %2 is a file</extracomment>
        <translation>Не отправлено. %1
Копия сохранена в %2.</translation>
    </message>
    <message>
        <source>Not sent. %1
No copy is kept: %2</source>
        <extracomment>%1 and %2 are others of these sentences, which say why</extracomment>
        <translation>Не отправлено. %1
Копия не сохранена: %2</translation>
    </message>
    <message>
        <source>Sending… No copy is kept: %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Отправка… Копия не сохранена: %1</translation>
    </message>
    <message>
        <source>Not handed over. No mail program was chosen.</source>
        <extracomment>The user was asked which mail program to open</extracomment>
        <translation>Не передано. Почтовая программа не выбрана.</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Не передано почтовой программе. %1</translation>
    </message>
    <message>
        <source>Not handed over to your mail program. %1
You can send the message from here.</source>
        <extracomment>%1 is another of these sentences, which says why</extracomment>
        <translation>Не передано почтовой программе. %1
Письмо можно отправить отсюда.</translation>
    </message>
    <message>
        <source>This computer has no mail program.</source>
        <translation>На этом компьютере нет почтовой программы.</translation>
    </message>
    <message>
        <source>The mail server refused the address or the message.</source>
        <translation>Почтовый сервер отклонил адрес или письмо.</translation>
    </message>
    <message>
        <source>The mail server can't be reached at the moment. Please try again later.</source>
        <translation>Почтовый сервер сейчас недоступен. Пожалуйста, повторите попытку позже.</translation>
    </message>
    <message>
        <source>You are not allowed to send mail.</source>
        <extracomment>The system’s mail program refuses the user</extracomment>
        <translation>У вас нет права отправлять почту.</translation>
    </message>
    <message>
        <source>Mail is not set up on this computer.</source>
        <translation>Почта на этом компьютере не настроена.</translation>
    </message>
    <message>
        <source>The mail program failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>Почтовая программа завершилась с кодом ошибки %1.</translation>
    </message>
    <message>
        <source>The mail program %1 can't be started.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>Не удаётся запустить почтовую программу %1.</translation>
    </message>
    <message>
        <source>The mail program took too long and was ended.</source>
        <extracomment>By the composer</extracomment>
        <translation>Почтовая программа работала слишком долго и была завершена.</translation>
    </message>
    <message>
        <source>The mail program crashed.</source>
        <translation>Почтовая программа аварийно завершилась.</translation>
    </message>
    <message>
        <source>Please enter an address to send to.</source>
        <translation>Пожалуйста, введите адрес получателя.</translation>
    </message>
    <message>
        <source>“%1” is not an e-mail address.</source>
        <extracomment>%1 is what the user has typed</extracomment>
        <translation>«%1» не является адресом электронной почты.</translation>
    </message>
    <message>
        <source>The address holds a line break or another control character. Please take it out.</source>
        <translation>В адресе есть разрыв строки или другой управляющий символ. Пожалуйста, удалите его.</translation>
    </message>
    <message>
        <source>The subject holds a line break or another control character. Please take it out.</source>
        <translation>В теме есть разрыв строки или другой управляющий символ. Пожалуйста, удалите его.</translation>
    </message>
    <message>
        <source>The attachment's name or type can't be sent.</source>
        <translation>Имя или тип вложения нельзя отправить.</translation>
    </message>
    <message>
        <source>There is no room for the message: %1.</source>
        <extracomment>%1 is the system’s reason</extracomment>
        <translation>Для письма нет места: %1.</translation>
    </message>
    <message>
        <source>The folder %1 can't be made: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>Не удаётся создать папку %1: %2.</translation>
    </message>
    <message>
        <source>The folder %1 can't be written: %2.</source>
        <extracomment>%2 is the system’s reason</extracomment>
        <translation>Не удаётся записать в папку %1: %2.</translation>
    </message>
    <message>
        <source>%1 can't be written: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>Не удаётся записать %1: %2.</translation>
    </message>
    <message>
        <source>%1 can't be read: %2.</source>
        <extracomment>%1 is a file, %2 the system’s reason</extracomment>
        <translation>Не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not an e-mail.</source>
        <extracomment>%1 is a file</extracomment>
        <translation>%1 не является письмом.</translation>
    </message>
    <message>
        <source>The desktop's mail portal has gone.</source>
        <extracomment>The portal is a program that opens the user’s mail program</extracomment>
        <translation>Почтовый портал рабочего стола больше не отвечает.</translation>
    </message>
    <message>
        <source>The desktop's mail portal says: %1.</source>
        <extracomment>%1 is what the portal says, in its own words</extracomment>
        <translation>Почтовый портал рабочего стола сообщает: %1.</translation>
    </message>
    <message>
        <source>The desktop's mail portal could not open a mail program.</source>
        <translation>Почтовый портал рабочего стола не смог открыть почтовую программу.</translation>
    </message>
    <message>
        <source>This computer has no mail program that xdg-email knows.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>На этом компьютере нет почтовой программы, известной xdg-email.</translation>
    </message>
    <message>
        <source>xdg-email could not open a mail program.</source>
        <extracomment>xdg-email is a program’s name</extracomment>
        <translation>xdg-email не смог открыть почтовую программу.</translation>
    </message>
    <message>
        <source>xdg-email failed with code %1.</source>
        <extracomment>%1 is a number</extracomment>
        <translation>xdg-email завершился с кодом ошибки %1.</translation>
    </message>
    <message>
        <source>xdg-email can't be started.</source>
        <translation>Не удаётся запустить xdg-email.</translation>
    </message>
    <message>
        <source>xdg-email crashed.</source>
        <translation>xdg-email аварийно завершился.</translation>
    </message>
</context>
</TS>
