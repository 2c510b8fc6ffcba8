<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>About</name>
    <message>
        <source>About Quillorent</source>
        <translation>Über Quillorent</translation>
    </message>
    <message>
        <source>Quillorent %1</source>
        <translation>Quillorent %1</translation>
    </message>
    <message>
        <source>Makes encrypted archives of your folders, and brings them back.</source>
        <translation>Macht aus Ihren Ordnern verschlüsselte Archive und holt sie zurück.</translation>
    </message>
    <message>
        <source>© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and share it; it comes without any warranty.</source>
        <translation>© 2026 Die Quillorent-Entwickler. Freie Software unter der MIT-Lizenz: Sie dürfen sie benutzen, ändern und weitergeben; es gibt keinerlei Gewährleistung.</translation>
    </message>
    <message>
        <source>It stands on these libraries and their licences:</source>
        <translation>Sie baut auf diesen Bibliotheken mit ihren Lizenzen auf:</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Make room on the disk of the destination, or choose another one. Then back up again.</source>
        <translation>Schaffen Sie auf dem Datenträger des Ziels Platz, oder wählen Sie ein anderes Ziel. Sichern Sie dann erneut.</translation>
    </message>
    <message>
        <source>The destination takes no files of that size. Have the archives split into files of less than 4 GB, and back up again.</source>
        <translation>Das Ziel nimmt keine so großen Dateien an. Lassen Sie die Archive in Dateien von weniger als 4 GB aufteilen, und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>Nothing can be written to the destination any more. Connect its disk anew, or choose another one, and back up again.</source>
        <translation>Am Ziel kann nichts mehr geschrieben werden. Schließen Sie den Datenträger neu an, oder wählen Sie ein anderes Ziel, und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>A disk does not work as it should. Check its cable, try another disk as the destination, and save what is on this one.</source>
        <translation>Ein Datenträger arbeitet nicht, wie er soll. Prüfen Sie sein Kabel, versuchen Sie es mit einem anderen als Ziel, und bringen Sie in Sicherheit, was auf diesem liegt.</translation>
    </message>
    <message>
        <source>Something may not be read or written by you. Change its permissions, or take it off the list, and back up again.</source>
        <translation>Etwas dürfen Sie nicht lesen oder schreiben. Ändern Sie seine Zugriffsrechte, oder nehmen Sie es aus der Liste, und sichern Sie erneut.</translation>
    </message>
    <message>
        <source>A program that the backup needs can&apos;t be started. The Tools tab shows which one and lets you choose it.</source>
        <translation>Ein Programm, das die Sicherung braucht, lässt sich nicht starten. Die Seite „Werkzeuge“ zeigt, welches, und lässt Sie es auswählen.</translation>
    </message>
    <message>
        <source>Back up again. If it fails again, the messages of the tools tell more (Show messages, on the Tools tab).</source>
        <translation>Sichern Sie erneut. Schlägt es wieder fehl, sagen die Meldungen der Werkzeuge mehr („Meldungen zeigen“ auf der Seite „Werkzeuge“).</translation>
    </message>
</context>
<context>
    <name>ChoicePanel</name>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>What is to be decided</source>
        <translation>Was zu entscheiden ist</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Backs up folders into encrypted archives, and brings them back. Opens a window;
quillorent-run does the same without one.</source>
        <translation>Sichert Ordner in verschlüsselte Archive und holt sie zurück. Öffnet ein Fenster;
quillorent-run tut dasselbe ohne Fenster.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Diesen Text zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>Archives to bring back.</source>
        <translation>Archive zum Zurückholen.</translation>
    </message>
    <message>
        <source>[archive...]</source>
        <translation>[archive...]</translation>
    </message>
    <message>
        <source>Open this page: %1.</source>
        <translation>Diese Seite öffnen: %1.</translation>
    </message>
    <message>
        <source>page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Es gibt keine Option „%1“.</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>Es gibt keine Seite „%1“.</translation>
    </message>
</context>
<context>
    <name>ConcernsPanel01</name>
    <message>
        <source>Before it begins</source>
        <translation>Bevor es losgeht</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Please read this before you go on:</source>
        <translation>Bitte lesen Sie dies, bevor Sie fortfahren:</translation>
    </message>
    <message>
        <source>What to think of before it begins</source>
        <translation>Was vor dem Beginn zu bedenken ist</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Go on anyway</source>
        <translation>&amp;Trotzdem fortfahren</translation>
    </message>
</context>
<context>
    <name>ConsolePanel01</name>
    <message>
        <source>Messages of the last run</source>
        <translation>Meldungen des letzten Laufs</translation>
    </message>
    <message>
        <source>What the last run reported</source>
        <translation>Was der letzte Lauf gemeldet hat</translation>
    </message>
    <message>
        <source>The last run had nothing to report.</source>
        <translation>Der letzte Lauf hatte nichts zu melden.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole text</source>
        <translation>Den ganzen Text kopieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>ContentsPanel01</name>
    <message>
        <source>Single files and folders</source>
        <translation>Einzelne Dateien und Ordner</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>Part of a name; Return goes to the next one</source>
        <translation>Teil eines Namens; die Eingabetaste springt zum nächsten</translation>
    </message>
    <message>
        <source>What the archive holds</source>
        <translation>Was das Archiv enthält</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Restore what is chosen</source>
        <translation>Ausgewähltes &amp;zurückholen</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Fenster zeigen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
</context>
<context>
    <name>ExtractPanel01</name>
    <message>
        <source>An archive failed its test</source>
        <translation>Ein Archiv hat die Prüfung nicht bestanden</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Nothing was extracted, because this archive is not whole:</source>
        <translation>Es wurde nichts entpackt, weil dieses Archiv beschädigt oder unvollständig ist:</translation>
    </message>
    <message>
        <source>The archive that failed its test</source>
        <translation>Das Archiv, das die Prüfung nicht bestanden hat</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Guide</source>
        <translation>Anleitung</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quillorent[*]</source>
        <translation>Quillorent[*]</translation>
    </message>
    <message>
        <source>Pro&amp;file</source>
        <translation>Pro&amp;fil</translation>
    </message>
    <message>
        <source>The profile to load; loading makes it the one in use</source>
        <translation>Das Profil zum Laden; erst durch Laden wird es verwendet</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>&amp;Laden</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>Das gewählte Profil verwenden</translation>
    </message>
    <message>
        <source>Make a new profile</source>
        <translation>Ein neues Profil anlegen</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>Make another profile from the chosen one</source>
        <translation>Ein weiteres Profil aus dem gewählten machen</translation>
    </message>
    <message>
        <source>Duplicate the profile</source>
        <translation>Profil duplizieren</translation>
    </message>
    <message>
        <source>Give the chosen profile another name</source>
        <translation>Dem gewählten Profil einen anderen Namen geben</translation>
    </message>
    <message>
        <source>Rename the profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>Das gewählte Profil löschen</translation>
    </message>
    <message>
        <source>Delete the profile</source>
        <translation>Profil löschen</translation>
    </message>
    <message>
        <source>Loading or saving profiles</source>
        <translation>Profile werden geladen oder gespeichert</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Verwendet:</translation>
    </message>
    <message>
        <source>Save all profiles</source>
        <translation>Alle Profile speichern</translation>
    </message>
    <message>
        <source>Options…</source>
        <translation>Optionen…</translation>
    </message>
    <message>
        <source>How this profile encrypts, and what the program does by itself</source>
        <translation>Wie dieses Profil verschlüsselt, und was das Programm von selbst tut</translation>
    </message>
    <message>
        <source>&amp;Back up</source>
        <translation>&amp;Sichern</translation>
    </message>
    <message>
        <source>Folders and files to bac&amp;k up</source>
        <translation>Ordner und Dateien zu&amp;m Sichern</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>Rü&amp;ckgängig</translation>
    </message>
    <message>
        <source>Put back what was removed from the list (Ctrl+Z)</source>
        <translation>Wieder in die Liste nehmen, was daraus entfernt wurde (Strg+Z)</translation>
    </message>
    <message>
        <source>Folders and files to back up</source>
        <translation>Ordner und Dateien zum Sichern</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>Hinzufü&amp;gen…</translation>
    </message>
    <message>
        <source>Add folders and files to the list</source>
        <translation>Ordner und Dateien in die Liste aufnehmen</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Entfe&amp;rnen</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the folders themselves stay (Delete)</source>
        <translation>Ausgewählte Einträge aus der Liste nehmen; die Ordner selbst bleiben (Entf)</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Wohin</translation>
    </message>
    <message>
        <source>Choose where the archives go</source>
        <translation>Wählen Sie, wohin die Archive kommen</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>Wähl&amp;en…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>Protected by</source>
        <translation>Schutz</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>Ä&amp;ndern…</translation>
    </message>
    <message>
        <source>Go to the passwords</source>
        <translation>Zu den Passwörtern gehen</translation>
    </message>
    <message>
        <source>Change the protection</source>
        <translation>Schutz ändern</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Show or hide how the archives are made</source>
        <translation>Zeigen oder verbergen, wie die Archive gemacht werden</translation>
    </message>
    <message>
        <source>Details of the archives</source>
        <translation>Details der Archive</translation>
    </message>
    <message>
        <source>Spl&amp;it each archive into files of</source>
        <translation>Archive aufte&amp;ilen in Dateien von</translation>
    </message>
    <message>
        <source>Make several files of this size, called volumes, instead of one large one: for discs, or for places that take no large files. All of them are needed to restore</source>
        <translation>Mehrere Dateien dieser Größe, „Teile“, statt einer großen machen: für CDs und DVDs, oder für Orte, die keine großen Dateien annehmen. Zum Zurückholen werden alle gebraucht</translation>
    </message>
    <message>
        <source>Largest size of a file</source>
        <translation>Höchstgröße einer Datei</translation>
    </message>
    <message>
        <source>With its unit, such as 700 MB or 4.7 GB; a number alone means MB</source>
        <translation>Mit Einheit, etwa 700 MB oder 4,7 GB; eine bloße Zahl bedeutet MB</translation>
    </message>
    <message>
        <source>Largest size of a file, arrows</source>
        <translation>Höchstgröße einer Datei, Pfeile</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>Übliche Größen</translation>
    </message>
    <message>
        <source>Make them smaller before encrypting</source>
        <translation>Vor dem Verschlüsseln verkleinern</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Macht Archive von Dokumenten, E-Mails und Ähnlichem viel kleiner; die Größe eines Archivs verrät dann etwas von seinem Inhalt</translation>
    </message>
    <message>
        <source>Found by packing samples of what is on the list</source>
        <translation>Ermittelt durch Packen von Stichproben aus der Liste</translation>
    </message>
    <message>
        <source>Date archives like their newe&amp;st file</source>
        <translation>Archi&amp;ve wie ihre neueste Datei datieren</translation>
    </message>
    <message>
        <source>Without this, an archive has the date of the backup</source>
        <translation>Ohne dies hat ein Archiv das Datum der Sicherung</translation>
    </message>
    <message>
        <source>Date the encrypted file in them the same way</source>
        <translation>Die verschlüsselte Datei darin ebenso datieren</translation>
    </message>
    <message>
        <source>How the last backup ended</source>
        <translation>Wie die letzte Sicherung ausging</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Show the archives in the file manager</source>
        <translation>Die Archive im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Try a restore</source>
        <translation>Zurückholen testen</translation>
    </message>
    <message>
        <source>Only what came back is a backup: bring something back while you still have it</source>
        <translation>Nur was zurückkam, ist gesichert: Holen Sie etwas zurück, solange Sie es noch haben</translation>
    </message>
    <message>
        <source>Back &amp;up now</source>
        <translation>&amp;Jetzt sichern</translation>
    </message>
    <message>
        <source>R&amp;estore</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>Backups found</source>
        <translation>Gefundene Sicherungen</translation>
    </message>
    <message>
        <source>To be bro&amp;ught back</source>
        <translation>Zurückzuholende Archi&amp;ve</translation>
    </message>
    <message>
        <source>Archives to be brought back</source>
        <translation>Zurückzuholende Archive</translation>
    </message>
    <message>
        <source>Add archives from anywhere; of one in several parts the first is enough</source>
        <translation>Archive von beliebigem Ort hinzufügen; von einem in mehreren Teilen genügt der erste</translation>
    </message>
    <message>
        <source>Sin&amp;gle files…</source>
        <translation>Einzelne &amp;Dateien…</translation>
    </message>
    <message>
        <source>See what the selected archive holds, and bring back only what you choose of it</source>
        <translation>Nachsehen, was das ausgewählte Archiv enthält, und nur zurückholen, was Sie daraus auswählen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected archives off the list; the files themselves stay (Delete)</source>
        <translation>Ausgewählte Archive aus der Liste nehmen; die Dateien selbst bleiben (Entf)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>Lee&amp;ren</translation>
    </message>
    <message>
        <source>Take all archives off the list</source>
        <translation>Alle Archive aus der Liste nehmen</translation>
    </message>
    <message>
        <source>To look for single files, the whole archive has to be decrypted: that needs the password, and about as long as bringing back all of it.</source>
        <translation>Um einzelne Dateien zu zeigen, muss das ganze Archiv entschlüsselt werden: Das braucht das Passwort und etwa so viel Zeit wie das Zurückholen des Ganzen.</translation>
    </message>
    <message>
        <source>&amp;Into folder</source>
        <translation>&amp;In den Ordner</translation>
    </message>
    <message>
        <source>Choose where the contents go</source>
        <translation>Wählen Sie, wohin der Inhalt kommt</translation>
    </message>
    <message>
        <source>Use ~/Restored</source>
        <translation>~/Restored nehmen</translation>
    </message>
    <message>
        <source>A folder of the name &quot;Restored&quot; in your home folder; it is made if it isn&apos;t there yet</source>
        <translation>Ein Ordner namens „Restored“ in Ihrem persönlichen Ordner; er wird angelegt, wenn es ihn noch nicht gibt</translation>
    </message>
    <message>
        <source>Use the folder &quot;Restored&quot; in your home folder</source>
        <translation>Den Ordner „Restored“ im persönlichen Ordner nehmen</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Wähle&amp;n…</translation>
    </message>
    <message>
        <source>Choose the folder that everything goes to</source>
        <translation>Den Ordner wählen, in den alles kommt</translation>
    </message>
    <message>
        <source>H&amp;ow it is encrypted</source>
        <translation>Verschlüss&amp;elung</translation>
    </message>
    <message>
        <source>With the password, by AES</source>
        <translation>Mit dem Passwort, durch AES</translation>
    </message>
    <message>
        <source>With the password, by Blowfish</source>
        <translation>Mit dem Passwort, durch Blowfish</translation>
    </message>
    <message>
        <source>With the password, by Triple DES</source>
        <translation>Mit dem Passwort, durch Triple DES</translation>
    </message>
    <message>
        <source>For a certificate, by S/MIME</source>
        <translation>Für ein Zertifikat, durch S/MIME</translation>
    </message>
    <message>
        <source>Automatic: as the archive&apos;s name tells</source>
        <translation>Automatisch: wie der Name des Archivs sagt</translation>
    </message>
    <message>
        <source>How bringing back ended last time</source>
        <translation>Wie das letzte Zurückholen ausging</translation>
    </message>
    <message>
        <source>Open fol&amp;der</source>
        <translation>&amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Show what was brought back, in the file manager</source>
        <translation>Das Zurückgeholte im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Restore &amp;now</source>
        <translation>&amp;Jetzt zurückholen</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;wort</translation>
    </message>
    <message>
        <source>Protect arch&amp;ives with</source>
        <translation>Schutz der Archi&amp;ve</translation>
    </message>
    <message>
        <source>Typed password</source>
        <translation>Eingetipptes Passwort</translation>
    </message>
    <message>
        <source>Password from the keychain</source>
        <translation>Passwort aus dem Schlüsselbund</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>Passwor&amp;d</source>
        <translation>Passw&amp;ort</translation>
    </message>
    <message>
        <source>Password, hidden</source>
        <translation>Passwort, verborgen</translation>
    </message>
    <message>
        <source>Password, shown</source>
        <translation>Passwort, sichtbar</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>Noch ein&amp;mal</translation>
    </message>
    <message>
        <source>Where no archive is there yet that tells a mistyped password</source>
        <translation>Nötig, wo noch kein Archiv liegt, an dem ein Tippfehler auffiele</translation>
    </message>
    <message>
        <source>Password, once more</source>
        <translation>Passwort, noch einmal</translation>
    </message>
    <message>
        <source>Hide the p&amp;assword</source>
        <translation>Passwort ve&amp;rbergen</translation>
    </message>
    <message>
        <source>The two differ: one of them is mistyped.</source>
        <translation>Die beiden stimmen nicht überein: Eines davon ist vertippt.</translation>
    </message>
    <message>
        <source>The keychain is where your desktop keeps passwords; your log-in opens it. Fetch takes the password out of it, Store puts it in. It is lost together with your account: write it down all the same.</source>
        <translation>Im Schlüsselbund bewahrt Ihre Arbeitsumgebung Passwörter auf; Ihre Anmeldung öffnet ihn. „Holen“ nimmt das Passwort heraus, „Ablegen“ tut es hinein. Mit Ihrem Benutzerkonto geht es verloren: Schreiben Sie es trotzdem auf.</translation>
    </message>
    <message>
        <source>Acco&amp;unt</source>
        <translation>Ko&amp;nto</translation>
    </message>
    <message>
        <source>The name that the keychain keeps the password under</source>
        <translation>Der Name, unter dem der Schlüsselbund das Passwort führt</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>Hol&amp;en</translation>
    </message>
    <message>
        <source>Fetch this account&apos;s password from the keychain</source>
        <translation>Das Passwort dieses Kontos aus dem Schlüsselbund holen</translation>
    </message>
    <message>
        <source>Password of the keychain, hidden</source>
        <translation>Passwort des Schlüsselbunds, verborgen</translation>
    </message>
    <message>
        <source>Password of the keychain, shown</source>
        <translation>Passwort des Schlüsselbunds, sichtbar</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>Able&amp;gen</translation>
    </message>
    <message>
        <source>Store the password in the keychain; one that is there already is never replaced</source>
        <translation>Das Passwort im Schlüsselbund ablegen; ein vorhandenes wird nie ersetzt</translation>
    </message>
    <message>
        <source>Hide this p&amp;assword</source>
        <translation>&amp;Dieses Passwort verbergen</translation>
    </message>
    <message>
        <source>Asking the keychain</source>
        <translation>Der Schlüsselbund wird gefragt</translation>
    </message>
    <message>
        <source>U&amp;nlock…</source>
        <translation>Entspe&amp;rren…</translation>
    </message>
    <message>
        <source>Let the keychain ask for its password</source>
        <translation>Den Schlüsselbund nach seinem Passwort fragen lassen</translation>
    </message>
    <message>
        <source>Careful: the text that counts is not the one you see here. The switch &quot;Hide the password&quot; of the typed password decides between the hidden and the shown text; set it like the one above, on the page &quot;Typed password&quot;.</source>
        <translation>Vorsicht: Was gilt, ist nicht der Text, den Sie hier sehen. Ob der verborgene oder der sichtbare Text gilt, entscheidet der Schalter „Passwort verbergen“ des eingetippten Passworts; stellen Sie ihn auf der Seite „Eingetipptes Passwort“ so ein wie den hier oben.</translation>
    </message>
    <message>
        <source>Certific&amp;ate</source>
        <translation>Zert&amp;ifikat</translation>
    </message>
    <message>
        <source>The certificate of whoever is to open the archives</source>
        <translation>Das Zertifikat dessen, der die Archive öffnen soll</translation>
    </message>
    <message>
        <source>Choose the certificate</source>
        <translation>Zertifikat wählen</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>Zeige&amp;n</translation>
    </message>
    <message>
        <source>Show the certificate as text, among the messages</source>
        <translation>Das Zertifikat als Text zeigen, bei den Meldungen</translation>
    </message>
    <message>
        <source>Show the certificate</source>
        <translation>Zertifikat zeigen</translation>
    </message>
    <message>
        <source>Private &amp;key</source>
        <translation>P&amp;rivater Schlüssel</translation>
    </message>
    <message>
        <source>Needed to restore only; the file that belongs to the certificate</source>
        <translation>Nur zum Zurückholen nötig; die Datei, die zum Zertifikat gehört</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Privaten Schlüssel wählen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show the private key as text, among the messages, where everybody can read it</source>
        <translation>Den privaten Schlüssel als Text zeigen, bei den Meldungen, wo jeder ihn lesen kann</translation>
    </message>
    <message>
        <source>Show the private key</source>
        <translation>Privaten Schlüssel zeigen</translation>
    </message>
    <message>
        <source>Two files instead of a password: the certificate locks, and only the private key that belongs to it opens. Backups need the certificate alone.</source>
        <translation>Zwei Dateien statt eines Passworts: Das Zertifikat schließt zu, und nur der private Schlüssel, der dazugehört, öffnet. Zum Sichern genügt das Zertifikat.</translation>
    </message>
    <message>
        <source>Without this password, or the private key that belongs to the certificate, nobody can open the archives, you included.</source>
        <translation>Ohne dieses Passwort, oder den privaten Schlüssel zum Zertifikat, kann niemand die Archive öffnen, auch Sie nicht.</translation>
    </message>
    <message>
        <source>S&amp;ynchronise</source>
        <translation>A&amp;bgleichen</translation>
    </message>
    <message>
        <source>Folders and files to synchronise</source>
        <translation>Ordner und Dateien zum Abgleichen</translation>
    </message>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Ordner und Dateien zum Abgleichen hinzufügen</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the files themselves stay (Delete)</source>
        <translation>Ausgewählte Einträge aus der Liste nehmen; die Dateien selbst bleiben (Entf)</translation>
    </message>
    <message>
        <source>Remove entries from synchronisation</source>
        <translation>Einträge aus dem Abgleich entfernen</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Kept with the profile; what is copied is the list above</source>
        <translation>Wird mit dem Profil aufbewahrt; kopiert wird die Liste oben</translation>
    </message>
    <message>
        <source>For your notes; what is copied is the list above</source>
        <translation>Für Ihre Notizen; kopiert wird die Liste oben</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Quellordner wählen</translation>
    </message>
    <message>
        <source>&amp;Destination</source>
        <translation>Z&amp;iel</translation>
    </message>
    <message>
        <source>Choose or type the folder that the files go to</source>
        <translation>Ordner, in den die Dateien kommen, wählen oder eintippen</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Ziel des Abgleichs wählen</translation>
    </message>
    <message>
        <source>On a server</source>
        <translation>Auf einem Server</translation>
    </message>
    <message>
        <source>The destination is a folder on another computer, reached over an encrypted connection (ssh)</source>
        <translation>Das Ziel ist ein Ordner auf einem anderen Rechner, erreicht über eine verschlüsselte Verbindung (ssh)</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>Ben&amp;utzer</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>By date; what is newer at the destination stays</source>
        <translation>Nach Datum; was am Ziel neuer ist, bleibt</translation>
    </message>
    <message>
        <source>By content; every file is read</source>
        <translation>Nach Inhalt; jede Datei wird gelesen</translation>
    </message>
    <message>
        <source>Deletion</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete at the dest&amp;ination what is not here</source>
        <translation>Am Ziel lös&amp;chen, was hier nicht ist</translation>
    </message>
    <message>
        <source>Inside the listed folders only</source>
        <translation>Nur innerhalb der aufgelisteten Ordner</translation>
    </message>
    <message>
        <source>Remove files here once they are at the destination</source>
        <translation>Dateien hier entfernen, sobald sie am Ziel sind</translation>
    </message>
    <message>
        <source>This moves the files instead of copying them</source>
        <translation>Dies verschiebt die Dateien, statt sie zu kopieren</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>How the last synchronisation ended</source>
        <translation>Wie der letzte Abgleich ausging</translation>
    </message>
    <message>
        <source>Preview…</source>
        <translation>Vorschau…</translation>
    </message>
    <message>
        <source>Show what would be copied and deleted; nothing is changed</source>
        <translation>Zeigen, was kopiert und gelöscht würde; geändert wird nichts</translation>
    </message>
    <message>
        <source>Synchronise &amp;now</source>
        <translation>&amp;Jetzt abgleichen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>Wer&amp;kzeuge</translation>
    </message>
    <message>
        <source>Programs that do the work. Press Choose, or double-click a path to change it.</source>
        <translation>Programme, die die Arbeit tun. „Wählen“ oder ein Doppelklick auf den Pfad ändert ihn.</translation>
    </message>
    <message>
        <source>External tools</source>
        <translation>Externe Werkzeuge</translation>
    </message>
    <message>
        <source>Saving settings</source>
        <translation>Einstellungen werden gespeichert</translation>
    </message>
    <message>
        <source>Save settin&amp;gs</source>
        <translation>Einstellun&amp;gen speichern</translation>
    </message>
    <message>
        <source>Save the paths of the tools and the other settings, and check the tools again</source>
        <translation>Die Pfade der Werkzeuge und die übrigen Einstellungen speichern, und die Werkzeuge erneut prüfen</translation>
    </message>
    <message>
        <source>Show &amp;messages</source>
        <translation>&amp;Meldungen zeigen</translation>
    </message>
    <message>
        <source>What the programs said in the last run, where something failed</source>
        <translation>Was die Programme im letzten Lauf sagten, wo etwas fehlschlug</translation>
    </message>
    <message>
        <source>Programs that are still at work</source>
        <translation>Programme, die noch arbeiten</translation>
    </message>
    <message>
        <source>End them</source>
        <translation>Diese beenden</translation>
    </message>
    <message>
        <source>End the programs that a failed run has left at work</source>
        <translation>Die Programme beenden, die nach einem fehlgeschlagenen Lauf noch arbeiten</translation>
    </message>
    <message>
        <source>Files that are not encrypted</source>
        <translation>Dateien, die nicht verschlüsselt sind</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Diese entfernen</translation>
    </message>
    <message>
        <source>Remove these files; the folders that they were made from stay</source>
        <translation>Diese Dateien entfernen; die Ordner, aus denen sie gemacht wurden, bleiben</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Ak&amp;tionen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Neu…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Duplizieren…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>&amp;Löschen…</translation>
    </message>
    <message>
        <source>&amp;Load the chosen profile</source>
        <translation>Gewähltes Profil l&amp;aden</translation>
    </message>
    <message>
        <source>&amp;Save all profiles</source>
        <translation>Alle Profile &amp;speichern</translation>
    </message>
    <message>
        <source>Open this profile at start-&amp;up</source>
        <translation>Dieses Profil beim Start ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>&amp;Optionen…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>Jetzt &amp;sichern</translation>
    </message>
    <message>
        <source>&amp;Restore now</source>
        <translation>Jetzt &amp;zurückholen</translation>
    </message>
    <message>
        <source>&amp;Synchronise now</source>
        <translation>Jetzt &amp;abgleichen</translation>
    </message>
    <message>
        <source>Show what synchronising would &amp;do…</source>
        <translation>Zeigen, &amp;was ein Abgleich täte…</translation>
    </message>
    <message>
        <source>S&amp;top…</source>
        <translation>An&amp;halten…</translation>
    </message>
    <message>
        <source>Add &amp;folders to back up…</source>
        <translation>&amp;Ordner zum Sichern hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;archives to restore…</source>
        <translation>Archi&amp;ve zum Zurückholen hinzufügen…</translation>
    </message>
    <message>
        <source>Save settings and &amp;check the programs</source>
        <translation>Einstellungen speichern und &amp;Programme prüfen</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Zurückholen</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Passwort</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>&amp;Abgleichen</translation>
    </message>
    <message>
        <source>&amp;Messages of the last run</source>
        <translation>&amp;Meldungen des letzten Laufs</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Anleitung</translation>
    </message>
    <message>
        <source>&amp;Recovery without this program</source>
        <translation>&amp;Zurückholen ohne dieses Programm</translation>
    </message>
    <message>
        <source>&amp;About Quillorent</source>
        <translation>Ü&amp;ber Quillorent</translation>
    </message>
    <message>
        <source>A backup needs more room than its archives do in the end: what is packed and what is encrypted lie here side by side for a while, together about two and a half times as much as the folder</source>
        <translation>Eine Sicherung braucht mehr Platz, als ihre Archive am Ende belegen: Gepacktes und Verschlüsseltes liegen hier eine Weile nebeneinander, zusammen etwa das Zweieinhalbfache des Ordners</translation>
    </message>
    <message>
        <source>Of an archive that was made in several parts, the first one is enough; the others only have to be in the same folder</source>
        <translation>Von einem Archiv aus mehreren Teilen genügt der erste; die anderen müssen nur im selben Ordner liegen</translation>
    </message>
    <message>
        <source>The name of an archive tells how it was encrypted; choose it here only where an archive was renamed. AES, Blowfish and Triple DES are ways to do it with a password; S/MIME is the way to do it for a certificate, and takes the private key that belongs to it. Both are chosen where passwords are.</source>
        <translation>Wie ein Archiv verschlüsselt ist, sagt sein Name; wählen Sie es hier nur, wo ein Archiv umbenannt wurde. AES, Blowfish und Triple DES sind Verfahren mit einem Passwort; S/MIME ist das Verfahren für ein Zertifikat und braucht dessen privaten Schlüssel. Beides wird bei den Passwörtern gewählt.</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht in Ordnung ist</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>NamePanel</name>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>New &amp;name</source>
        <translation>Neuer &amp;Name</translation>
    </message>
    <message>
        <source>Begin with my &amp;usual folders (documents, pictures, desktop)</source>
        <translation>Mit meinen üblichen &amp;Ordnern beginnen (Dokumente, Bilder, Schreibtisch)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>now: the last one of the list</source>
        <translation>derzeit: das letzte der Liste</translation>
    </message>
    <message>
        <source>now: %1</source>
        <translation>derzeit: %1</translation>
    </message>
    <message>
        <source>Can&apos;t start</source>
        <translation>Start nicht möglich</translation>
    </message>
    <message>
        <source>Certificate not accepted</source>
        <translation>Zertifikat nicht angenommen</translation>
    </message>
    <message>
        <source>Private key not accepted</source>
        <translation>Privater Schlüssel nicht angenommen</translation>
    </message>
    <message>
        <source>Can&apos;t save</source>
        <translation>Speichern nicht möglich</translation>
    </message>
    <message>
        <source>Settings and profiles</source>
        <translation>Einstellungen und Profile</translation>
    </message>
    <message>
        <source>Programs are missing</source>
        <translation>Programme fehlen</translation>
    </message>
    <message>
        <source>Changed by others, too</source>
        <translation>Auch von anderen geändert</translation>
    </message>
    <message>
        <source>&amp;Save what I changed</source>
        <translation>&amp;Eigene Änderungen speichern</translation>
    </message>
    <message>
        <source>&amp;Take what is in the file</source>
        <translation>Stand der &amp;Datei übernehmen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Save a copy...</source>
        <translation>&amp;Kopie speichern...</translation>
    </message>
    <message>
        <source>&amp;Quit without saving</source>
        <translation>&amp;Ohne Speichern beenden</translation>
    </message>
    <message>
        <source>Rename a profile</source>
        <translation>Profil umbenennen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Neues Profil</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>Anle&amp;gen</translation>
    </message>
    <message>
        <source>Duplicate a profile</source>
        <translation>Profil duplizieren</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>The two are independent of each other once the profiles are saved and the program is started again. Until then a change in one is a change in both.</source>
        <translation>Unabhängig voneinander sind die beiden, sobald die Profile gespeichert sind und das Programm neu gestartet ist. Bis dahin ist eine Änderung in einem eine Änderung in beiden.</translation>
    </message>
    <message>
        <source>Name not accepted</source>
        <translation>Name nicht angenommen</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel01</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Dieses Profil</translation>
    </message>
    <message>
        <source>With a pass&amp;word, encrypt by</source>
        <translation>Mit &amp;Passwort verschlüsseln durch</translation>
    </message>
    <message>
        <source>AES is the right one; the others are there for whoever must open the archives with old programs</source>
        <translation>AES ist das richtige; die anderen gibt es für alle, die die Archive mit alten Programmen öffnen müssen</translation>
    </message>
    <message>
        <source>AES, 256 bits (recommended)</source>
        <translation>AES, 256 Bit (empfohlen)</translation>
    </message>
    <message>
        <source>Blowfish (old)</source>
        <translation>Blowfish (alt)</translation>
    </message>
    <message>
        <source>Triple DES (old)</source>
        <translation>Triple DES (alt)</translation>
    </message>
    <message>
        <source>With a ce&amp;rtificate, encrypt by</source>
        <translation>Mit &amp;Zertifikat verschlüsseln durch</translation>
    </message>
    <message>
        <source>S/MIME is the standard by which mail is encrypted for a certificate; other programs can open it</source>
        <translation>S/MIME ist das übliche Verfahren, E-Mails für ein Zertifikat zu verschlüsseln; auch andere Programme können es öffnen</translation>
    </message>
    <message>
        <source>AES, 256 bits, as in mail (S/MIME)</source>
        <translation>AES, 256 Bit, wie bei E-Mails (S/MIME)</translation>
    </message>
    <message>
        <source>Compress before encryptin&amp;g</source>
        <translation>Vor dem Verschlüsseln &amp;verkleinern</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Macht Archive von Dokumenten, E-Mails und Ähnlichem viel kleiner; die Größe eines Archivs verrät dann etwas von seinem Inhalt</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask when the destination is not empty</source>
        <translation>&amp;Nicht fragen, wenn das Ziel nicht leer ist</translation>
    </message>
    <message>
        <source>Archives of the same name are replaced without a question</source>
        <translation>Gleichnamige Archive werden ohne Rückfrage ersetzt</translation>
    </message>
    <message>
        <source>The program</source>
        <translation>Das Programm</translation>
    </message>
    <message>
        <source>Open this profile at &amp;start-up</source>
        <translation>Dieses Profil beim Start ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Save, and open the profile in use when the program starts</source>
        <translation>Speichern, und beim Programmstart das gerade verwendete Profil öffnen</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Wird gespeichert</translation>
    </message>
    <message>
        <source>Save changes when &amp;quitting</source>
        <translation>Änderungen beim &amp;Beenden speichern</translation>
    </message>
    <message>
        <source>Without this, the program asks before changes that were not saved are lost</source>
        <translation>Ohne dies fragt das Programm, bevor ungespeicherte Änderungen verloren gehen</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version at each start</source>
        <translation>Bei &amp;jedem Start nach einer neueren Version suchen</translation>
    </message>
    <message>
        <source>&amp;Programs that do the work…</source>
        <translation>Verwendete P&amp;rogramme…</translation>
    </message>
    <message>
        <source>Which archiver, encryption tool and copying tool are used, and whether they are in order</source>
        <translation>Welche Programme zum Packen, Verschlüsseln und Kopieren verwendet werden, und ob sie in Ordnung sind</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
</context>
<context>
    <name>PreviewPanel01</name>
    <message>
        <source>What would be copied and deleted</source>
        <translation>Was kopiert und gelöscht würde</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>&amp;Abgleichen</translation>
    </message>
    <message>
        <source>Do what is shown</source>
        <translation>Das Gezeigte ausführen</translation>
    </message>
</context>
<context>
    <name>ProfilePanel04</name>
    <message>
        <source>Delete a profile</source>
        <translation>Profil löschen</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Dieses Profil löschen?</translation>
    </message>
    <message>
        <source>Folders and archives stay as they are; only the list of folders and the options are gone, for good once the profiles are saved.</source>
        <translation>Ordner und Archive bleiben, wie sie sind; nur die Liste der Ordner und die Optionen sind weg, endgültig, sobald die Profile gespeichert sind.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
    <message>
        <source>read: %1</source>
        <translation>gelesen: %1</translation>
    </message>
    <message>
        <source>more at the destination: %1</source>
        <translation>am Ziel hinzugekommen: %1</translation>
    </message>
</context>
<context>
    <name>ProgressFigures</name>
    <message>
        <source>%1%</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>ProgressPanel01</name>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Es wird gesichert…</translation>
    </message>
    <message>
        <source>Measuring the folders…</source>
        <translation>Ordner werden vermessen…</translation>
    </message>
    <message>
        <source>Progress of the backup</source>
        <translation>Fortschritt der Sicherung</translation>
    </message>
    <message>
        <source>Folders and how far they are</source>
        <translation>Ordner, und wie weit sie sind</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop the backup; archives that are finished stay</source>
        <translation>Sicherung anhalten; fertige Archive bleiben</translation>
    </message>
</context>
<context>
    <name>ProgressPanel02</name>
    <message>
        <source>Restore</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Progress of restoring</source>
        <translation>Fortschritt des Zurückholens</translation>
    </message>
    <message>
        <source>Archives and how far they are</source>
        <translation>Archive, und wie weit sie sind</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop; what is restored already stays, and is not complete</source>
        <translation>Anhalten; was schon zurückgeholt ist, bleibt und ist unvollständig</translation>
    </message>
</context>
<context>
    <name>ProgressPanel03</name>
    <message>
        <source>Synchronisation</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>The synchronisation goes on</source>
        <translation>Der Abgleich läuft</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop; what is copied already stays</source>
        <translation>Anhalten; was schon kopiert ist, bleibt</translation>
    </message>
</context>
<context>
    <name>Protection</name>
    <message>
        <source>Typed password</source>
        <translation>Eingetipptes Passwort</translation>
    </message>
    <message>
        <source>Password from the keychain – please look at the Password tab</source>
        <translation>Passwort aus dem Schlüsselbund – bitte sehen Sie auf der Seite „Passwort“ nach</translation>
    </message>
    <message>
        <source>Password from the keychain – no account chosen yet</source>
        <translation>Passwort aus dem Schlüsselbund – noch kein Konto gewählt</translation>
    </message>
    <message>
        <source>Password from the keychain – not fetched yet</source>
        <translation>Passwort aus dem Schlüsselbund – noch nicht geholt</translation>
    </message>
    <message>
        <source>Password typed for the keychain – not stored in it</source>
        <translation>Passwort für den Schlüsselbund eingetippt – nicht darin abgelegt</translation>
    </message>
    <message>
        <source>Password from the keychain, account %1</source>
        <translation>Passwort aus dem Schlüsselbund, Konto %1</translation>
    </message>
    <message>
        <source>Certificate – none chosen yet</source>
        <translation>Zertifikat – noch keines gewählt</translation>
    </message>
    <message>
        <source>Certificate: %1</source>
        <translation>Zertifikat: %1</translation>
    </message>
    <message>
        <source>Password – none typed yet</source>
        <translation>Passwort – noch keins eingetippt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Wählen</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>Synchronisation in progress</source>
        <translation>Abgleich läuft</translation>
    </message>
    <message>
        <source>Folders are being synchronised.</source>
        <translation>Ordner werden gerade abgeglichen.</translation>
    </message>
    <message>
        <source>Stop the synchronisation?</source>
        <translation>Abgleich anhalten?</translation>
    </message>
    <message>
        <source>What is copied already stays, and the next run goes on from there.</source>
        <translation>Was schon kopiert ist, bleibt, und der nächste Lauf macht dort weiter.</translation>
    </message>
    <message>
        <source>Restoring in progress</source>
        <translation>Zurückholen läuft</translation>
    </message>
    <message>
        <source>Files are being restored.</source>
        <translation>Dateien werden gerade zurückgeholt.</translation>
    </message>
    <message>
        <source>Stop restoring?</source>
        <translation>Zurückholen anhalten?</translation>
    </message>
    <message>
        <source>What is restored already stays, and is not complete.</source>
        <translation>Was schon zurückgeholt ist, bleibt und ist unvollständig.</translation>
    </message>
    <message>
        <source>Backup in progress</source>
        <translation>Sicherung läuft</translation>
    </message>
    <message>
        <source>A backup is running.</source>
        <translation>Eine Sicherung läuft.</translation>
    </message>
    <message>
        <source>Stop the backup?</source>
        <translation>Sicherung anhalten?</translation>
    </message>
    <message>
        <source>Archives that are finished stay. Folders that are not finished keep the archive of the backup before this one.</source>
        <translation>Fertige Archive bleiben. Ordner, die nicht fertig sind, behalten das Archiv der vorigen Sicherung.</translation>
    </message>
    <message>
        <source>Quitting stops that. %1</source>
        <translation>Das Beenden hält dies an. %1</translation>
    </message>
    <message>
        <source>&amp;Stop and quit</source>
        <translation>&amp;Anhalten und beenden</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Keep running</source>
        <translation>&amp;Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Looking into an archive</source>
        <translation>Blick in ein Archiv</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>In einem Archiv wird nachgesehen.</translation>
    </message>
    <message>
        <source>Stop looking into the archive?</source>
        <translation>Nicht weiter im Archiv nachsehen?</translation>
    </message>
    <message>
        <source>Nothing of yours has been changed.</source>
        <translation>Von Ihren Dateien wurde nichts verändert.</translation>
    </message>
</context>
<context>
    <name>UpdatePanel01</name>
    <message>
        <source>A newer version</source>
        <translation>Eine neuere Version</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was neu ist</translation>
    </message>
    <message>
        <source>Its makers say nothing of what is new.</source>
        <translation>Es ist nicht angegeben, was neu ist.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Später</translation>
    </message>
    <message>
        <source>Open the &amp;download page</source>
        <translation>&amp;Download-Seite öffnen</translation>
    </message>
</context>
<context>
    <name>WarningPanel02</name>
    <message>
        <source>The extraction folder is not empty</source>
        <translation>Der Ordner zum Entpacken ist nicht leer</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>The extraction folder is not empty:</source>
        <translation>Der Ordner zum Entpacken ist nicht leer:</translation>
    </message>
    <message>
        <source>Extraction folder</source>
        <translation>Ordner zum Entpacken</translation>
    </message>
    <message>
        <source>Files of the same name and place are replaced, others stay as they are.</source>
        <translation>Dateien mit gleichem Namen am gleichen Ort werden ersetzt, andere bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Extract anyway</source>
        <translation>&amp;Trotzdem entpacken</translation>
    </message>
</context>
<context>
    <name>WarningPanel03</name>
    <message>
        <source>The destination is not empty</source>
        <translation>Das Ziel ist nicht leer</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>The destination folder is not empty:</source>
        <translation>Der Zielordner ist nicht leer:</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>What is there</source>
        <translation>Was dort liegt</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Back up anyway</source>
        <translation>&amp;Trotzdem sichern</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Easy to guess. Five or six words that have nothing to do with each other are better.</source>
        <translation>Leicht zu erraten. Fünf oder sechs Wörter, die nichts miteinander zu tun haben, sind besser.</translation>
    </message>
    <message>
        <source>Hard to guess. One more word makes it strong.</source>
        <translation>Schwer zu erraten. Ein Wort mehr macht es stark.</translation>
    </message>
    <message>
        <source>Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is a lost backup.</source>
        <translation>Sehr schwer zu erraten. Ist es aufgeschrieben und an sicherem Ort? Ein vertipptes oder vergessenes Passwort ist eine verlorene Sicherung.</translation>
    </message>
    <message>
        <source>Use “%1”, which is chosen but not in use yet</source>
        <translation>„%1“ verwenden; es ist gewählt, wird aber noch nicht verwendet</translation>
    </message>
    <message>
        <source>Use the chosen profile; it is in use already</source>
        <translation>Das gewählte Profil verwenden; es wird schon verwendet</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>today at %1</source>
        <translation>heute um %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <translation>gestern um %1</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>am %1 um %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The program has been moved. Its own tools are used from where they are now, in “%1”: %2.</source>
        <translation>Das Programm wurde verschoben. Seine eigenen Werkzeuge werden von ihrem jetzigen Ort verwendet, in „%1“: %2.</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the right program there, or install it.</source>
        <translation>%1 von %2 Programmen, die die Arbeit tun, fehlen oder sind nicht die richtigen. Die Seite „Werkzeuge“ zeigt, welche: Wählen Sie dort das richtige Programm, oder installieren Sie es.</translation>
    </message>
    <message>
        <source>Still at work: %1.</source>
        <translation>Noch bei der Arbeit: %1.</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… und %1 weitere.</translation>
    </message>
    <message>
        <source>Files are being restored, and would not be complete.</source>
        <translation>Dateien werden gerade zurückgeholt und wären sonst unvollständig.</translation>
    </message>
    <message>
        <source>Folders are being synchronised, and would not be in step.</source>
        <translation>Ordner werden gerade abgeglichen und wären sonst nicht auf gleichem Stand.</translation>
    </message>
    <message>
        <source>A backup is running, and would not be complete.</source>
        <translation>Eine Sicherung läuft und wäre sonst unvollständig.</translation>
    </message>
    <message>
        <source>Cancelled before anything was done.</source>
        <translation>Abgebrochen, bevor etwas getan wurde.</translation>
    </message>
    <message>
        <source>Another profile was opened while the keychain was asked. Start again.</source>
        <translation>Ein anderes Profil wurde geöffnet, während der Schlüsselbund gefragt wurde. Beginnen Sie neu.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be read:
%2
Their file stays as it is. Repair it, or move it away: the next start makes a new one.</source>
        <translation>Die %1 sind nicht lesbar:
%2
Ihre Datei bleibt, wie sie ist. Reparieren Sie sie, oder verschieben Sie sie: Der nächste Start legt eine neue an.</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Something is running already, or about to end. Try again when it has ended.</source>
        <translation>Es läuft schon etwas, oder es ist noch nicht ganz zu Ende. Versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>A run that was broken off has left this, and it is not encrypted:
%1</source>
        <translation>Von einem abgebrochenen Lauf ist dies übrig, und es ist nicht verschlüsselt:
%1</translation>
    </message>
    <message>
        <source>Something is running just now. Remove these files when it has ended.</source>
        <translation>Im Augenblick läuft etwas. Entfernen Sie diese Dateien, wenn es zu Ende ist.</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>In einem Archiv wird nachgesehen.</translation>
    </message>
</context>
<context>
    <name>backup</name>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while: the backup will fail. Rename it.</source>
        <translation>„%1“ ist ein Ordner, und eine Datei dieses Namens wird für eine Weile gebraucht: Die Sicherung wird fehlschlagen. Benennen Sie ihn um.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It may be yours, or left in clear by a run that was interrupted. It will be called &quot;%2&quot;, and stay.</source>
        <translation>„%1“ ist schon da, und sein Name wird für eine Weile gebraucht. Es kann Ihnen gehören oder unverschlüsselt von einem unterbrochenen Lauf übrig sein. Es wird „%2“ heißen und bleiben.</translation>
    </message>
    <message>
        <source>These archives are in &quot;%1&quot; and will be replaced, other files stay: %2.</source>
        <translation>Diese Archive liegen in „%1“ und werden ersetzt, andere Dateien bleiben: %2.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is not empty. Other files stay as they are.</source>
        <translation>Das Ziel „%1“ ist nicht leer. Andere Dateien bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not open with this password: it is not the password of the archives there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, the new archives open with this password only.</source>
        <translation>„%1“ öffnet sich mit diesem Passwort nicht: Es ist nicht das Passwort der Archive dort, oder dieses Archiv ist beschädigt. Ist es vertippt, brechen Sie ab und berichtigen Sie es. Fahren Sie fort, öffnen sich die neuen Archive nur mit diesem Passwort.</translation>
    </message>
    <message>
        <source>The password was typed only once, and nothing tells whether it is mistyped. Type it again, in the second field on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>Das Passwort wurde nur einmal eingetippt, und nichts zeigt, ob es vertippt ist. Tippen Sie es noch einmal, in das zweite Feld auf der Seite „Passwort“: Was ein vertipptes Passwort verschlüsselt, kann niemand öffnen.</translation>
    </message>
    <message>
        <source>The password and its repetition differ: one of them is mistyped. Type both again on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>Das Passwort und seine Wiederholung stimmen nicht überein: Eines davon ist vertippt. Tippen Sie beide neu auf der Seite „Passwort“: Was ein vertipptes Passwort verschlüsselt, kann niemand öffnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is listed more than once, and is backed up as often, one after the other, into one archive.</source>
        <translation>„%1“ steht mehrmals in der Liste und wird ebenso oft gesichert, nacheinander, in dasselbe Archiv.</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>nicht vorhanden</translation>
    </message>
    <message>
        <source>it is neither a file nor a folder</source>
        <translation>weder Datei noch Ordner</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Backed up %1 of %2 (%3).</source>
        <translation>%1 von %2 gesichert (%3).</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>Nicht gefunden: %1.</translation>
    </message>
    <message>
        <source>Left out, as they are neither files nor folders: %1.</source>
        <translation>Ausgelassen, weil weder Datei noch Ordner: %1.</translation>
    </message>
    <message>
        <source>The former archive is called &quot;%1&quot; now: %2.</source>
        <translation>Das frühere Archiv heißt jetzt „%1“: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left and is not encrypted: run the backup again, or remove it.</source>
        <translation>„%1“ ist übrig und nicht verschlüsselt: Sichern Sie noch einmal, oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>The profile has no folders. Add those that are to be backed up.</source>
        <translation>Das Profil hat keine Ordner. Fügen Sie die hinzu, die gesichert werden sollen.</translation>
    </message>
    <message>
        <source>The destination that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>Das angezeigte Ziel ist nicht das dieses Profils. Wählen Sie es erneut.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the archives go to.</source>
        <translation>Es ist kein Ziel gewählt. Wählen Sie den Ordner, in den die Archive kommen.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>Das Ziel „%1“ existiert nicht oder ist kein Ordner. Schließen Sie den Datenträger an, oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of volumes, the files that an archive is split into. Choose a size such as 700 MB, or switch the splitting off.</source>
        <translation>„%1“ ist keine Größe für Teile, also die Dateien, in die ein Archiv aufgeteilt wird. Wählen Sie eine Größe wie 700 MB, oder schalten Sie das Aufteilen aus.</translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; would have a name that is too long for a file. Rename it, or back up the folder that it lies in.</source>
        <translation>Das Archiv von „%1“ bekäme einen Namen, der für eine Datei zu lang ist. Benennen Sie es um, oder sichern Sie den Ordner, in dem es liegt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both need the file &quot;%3&quot; in the destination, and one archive would replace the other. Rename one of them, or back it up by a profile of its own.</source>
        <translation>„%1“ und „%2“ bräuchten beide die Datei „%3“ im Ziel, und ein Archiv würde das andere ersetzen. Benennen Sie eines davon um, oder sichern Sie es mit einem eigenen Profil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the list, and its name is needed for the archive of &quot;%2&quot;. Choose another destination, or rename it.</source>
        <translation>„%1“ steht in der Liste, und sein Name wird für das Archiv von „%2“ gebraucht. Wählen Sie ein anderes Ziel, oder benennen Sie es um.</translation>
    </message>
    <message>
        <source>No password was fetched from the keychain. Fetch it: without a password nothing is backed up.</source>
        <translation>Es wurde kein Passwort aus dem Schlüsselbund geholt. Holen Sie es: Ohne Passwort wird nichts gesichert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, and is left out. Connect its disk, or remove it from the list.</source>
        <translation>„%1“ ist nicht da und wird ausgelassen. Schließen Sie den Datenträger an, oder entfernen Sie es aus der Liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, and is left out.</source>
        <translation>„%1“ wird ausgelassen, denn es ist weder Datei noch Ordner (%2).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link, and only the link itself would be backed up, nothing that it leads to. Put a slash behind it, or add the folder that it leads to.</source>
        <translation>„%1“ ist eine Verknüpfung, und gesichert würde nur sie selbst, nichts von dem, worauf sie zeigt. Setzen Sie einen Schrägstrich dahinter, oder fügen Sie den Ordner hinzu, auf den sie zeigt.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; lies in &quot;%2&quot;, so each archive would hold the ones before it. Choose another destination.</source>
        <translation>Das Ziel „%1“ liegt in „%2“, so dass jedes Archiv die früheren enthielte. Wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made.</source>
        <translation>„%1“ lässt sich nicht umbenennen, während das neue Archiv entsteht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made: %2.</source>
        <translation>„%1“ lässt sich nicht umbenennen, während das neue Archiv entsteht: %2.</translation>
    </message>
    <message>
        <source>Something is missing in the settings file, and without it files would be lost: %1. Repair the file, or move it away: the next start makes a new one.</source>
        <translation>In der Einstellungsdatei fehlt etwas, und ohne das gingen Dateien verloren: %1. Reparieren Sie die Datei, oder verschieben Sie sie: Der nächste Start legt eine neue an.</translation>
    </message>
</context>
<context>
    <name>extract</name>
    <message>
        <source>&quot;%1&quot; is no archive</source>
        <translation>„%1“ ist kein Archiv</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in &quot;%2&quot;, so nothing was brought back. The archive&apos;s paths look like &quot;%3&quot;.</source>
        <translation>„%1“ gibt es nicht in „%2“; darum wurde nichts zurückgeholt. Die Pfade des Archivs sehen so aus: „%3“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not extracted: its path has &quot;part&quot; and, after that, a number as later volumes have it. Move or rename it, and add it again.</source>
        <translation>„%1“ wird nicht entpackt: Im Pfad steht „part“ und danach eine Zahl wie bei späteren Teilen. Verschieben Sie es, oder benennen Sie es um, und fügen Sie es erneut hinzu.</translation>
    </message>
    <message>
        <source>The first volume is missing: &quot;%1&quot; is volume %2 of its set. Add the first one, &quot;%3.part1.rar&quot; or &quot;…part01.rar&quot;.</source>
        <translation>Der erste Teil fehlt: „%1“ ist Teil %2 seines Archivs. Fügen Sie den ersten hinzu, „%3.part1.rar“ oder „…part01.rar“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the path of anything in an archive. Name a file or a folder as the archive has it, such as &quot;home/anna/letter&quot;.</source>
        <translation>„%1“ kann kein Pfad in einem Archiv sein. Nennen Sie eine Datei oder einen Ordner so, wie das Archiv sie führt, etwa „home/anna/letter“.</translation>
    </message>
    <message>
        <source>%1 Extract again; if it happens again, the machine may be short of memory.</source>
        <translation>%1 Entpacken Sie erneut; geschieht es wieder, hat der Rechner womöglich zu wenig Arbeitsspeicher.</translation>
    </message>
    <message>
        <source>The disk of &quot;%1&quot; is full. Make room, or choose a folder on another disk, and extract again.</source>
        <translation>Der Datenträger von „%1“ ist voll. Schaffen Sie Platz, oder wählen Sie einen Ordner auf einem anderen, und entpacken Sie erneut.</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;. Choose another folder, or change its permissions.</source>
        <translation>In „%1“ darf nichts geschrieben werden. Wählen Sie einen anderen Ordner, oder ändern Sie die Zugriffsrechte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it, or extract into another folder.</source>
        <translation>„%1“ ist ein Ordner, und eine Datei dieses Namens wird für eine Weile gebraucht. Benennen Sie ihn um, oder entpacken Sie in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>A volume is missing: %1. Put all volumes of the set into one folder and extract again.</source>
        <translation>Ein Teil fehlt: %1. Legen Sie alle Teile des Archivs in einen Ordner, und entpacken Sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first volume of its set. Add the first one; the others are found by it.</source>
        <translation>„%1“ ist nicht der erste Teil seines Archivs. Fügen Sie den ersten hinzu; durch ihn werden die übrigen gefunden.</translation>
    </message>
    <message>
        <source>The volumes of &quot;%1&quot; do not belong together: %2. Put those of one set into one folder.</source>
        <translation>Die Teile von „%1“ gehören nicht zusammen: %2. Legen Sie die eines Archivs in einen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: a part of it was lost when it was copied, or the copy is not finished. Copy it again: %2.</source>
        <translation>„%1“ ist abgeschnitten: Beim Kopieren ging ein Stück verloren, oder die Kopie ist nicht fertig. Kopieren Sie es erneut (%2).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2. Fetch another copy of it.</source>
        <translation>„%1“ ist beschädigt: %2. Besorgen Sie eine andere Kopie davon.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no archive, whatever its name: %2.</source>
        <translation>„%1“ ist kein Archiv, wie es auch heißt: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be unpacked: %2.</source>
        <translation>„%1“ lässt sich nicht entpacken: %2.</translation>
    </message>
    <message>
        <source>The private key can&apos;t be read. Choose the one that belongs to the certificate, on the Password tab.</source>
        <translation>Der private Schlüssel ist nicht lesbar. Wählen Sie auf der Seite „Passwort“ den, der zum Zertifikat gehört.</translation>
    </message>
    <message>
        <source>The certificate can&apos;t be read. Choose the one that the archive was encrypted for, on the Password tab.</source>
        <translation>Das Zertifikat ist nicht lesbar. Wählen Sie auf der Seite „Passwort“ das, für das das Archiv verschlüsselt wurde.</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; is damaged, or was not encrypted for a certificate: %2. Fetch another copy, or choose another decryption method.</source>
        <translation>Der Inhalt von „%1“ ist beschädigt, oder er wurde nicht für ein Zertifikat verschlüsselt: %2. Besorgen Sie eine andere Kopie, oder wählen Sie eine andere Art der Verschlüsselung.</translation>
    </message>
    <message>
        <source>The private key or the certificate is not usable: %1. A key with a pass phrase can&apos;t be used.</source>
        <translation>Der private Schlüssel oder das Zertifikat ist nicht verwendbar: %1. Ein Schlüssel, den ein Passwort schützt, kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with this private key and certificate: %2. Choose the pair that it was encrypted for, on the Password tab.</source>
        <translation>„%1“ lässt sich mit diesem privaten Schlüssel und Zertifikat nicht entschlüsseln: %2. Wählen Sie auf der Seite „Passwort“ das Paar, für das es verschlüsselt wurde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a link where the encrypted file should be. It was not made by a backup: don&apos;t trust it.</source>
        <translation>„%1“ enthält eine Verknüpfung, wo die verschlüsselte Datei sein sollte. Eine Sicherung hat es nicht gemacht: Trauen Sie ihm nicht.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the decryption method, and extract again.</source>
        <translation>Der Name von „%1“ sagt nicht, wie es verschlüsselt ist. Wählen Sie die Art der Verschlüsselung, und entpacken Sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with the method that is chosen; its name tells another one. Choose the automatic method.</source>
        <translation>„%1“ lässt sich nach der gewählten Art nicht entschlüsseln; der Name nennt eine andere. Wählen Sie „Automatisch“.</translation>
    </message>
    <message>
        <source>The password is wrong: &quot;%1&quot; can&apos;t be decrypted with it. Type the one that the archive was made with.</source>
        <translation>Das Passwort ist falsch: „%1“ lässt sich damit nicht entschlüsseln. Tippen Sie das ein, mit dem das Archiv gemacht wurde.</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; was not encrypted by a password, or it is damaged. Choose another decryption method, or fetch another copy.</source>
        <translation>Der Inhalt von „%1“ wurde nicht mit einem Passwort verschlüsselt, oder er ist beschädigt. Wählen Sie eine andere Art der Verschlüsselung, oder besorgen Sie eine andere Kopie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted: %2.</source>
        <translation>„%1“ lässt sich nicht entschlüsseln: %2.</translation>
    </message>
    <message>
        <source>The password is probably wrong: what &quot;%1&quot; was decrypted to is no archive. Type the one that the archive was made with.</source>
        <translation>Das Passwort ist wahrscheinlich falsch: Was beim Entschlüsseln von „%1“ herauskam, ist kein Archiv. Tippen Sie das ein, mit dem das Archiv gemacht wurde.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds names that lead out of &quot;%2&quot;: %3. They were left out; don&apos;t trust the archive.</source>
        <translation>„%1“ enthält Namen, die aus „%2“ hinausführen: %3. Sie wurden ausgelassen; trauen Sie dem Archiv nicht.</translation>
    </message>
    <message>
        <source>A name in &quot;%1&quot; is taken by something else in &quot;%2&quot;: %3. Rename that, or extract into an empty folder.</source>
        <translation>Ein Name in „%1“ ist in „%2“ schon anders vergeben: %3. Benennen Sie das um, oder entpacken Sie in einen leeren Ordner.</translation>
    </message>
    <message>
        <source>The archiver left out a link of &quot;%1&quot;: %2. It makes none that lead to an absolute path or out of the folder. Quillorent&apos;s own archiver does: choose it on the Tools tab, and extract again.</source>
        <translation>Das Packprogramm hat eine Verknüpfung aus „%1“ ausgelassen: %2. Es legt keine an, die auf einen absoluten Pfad oder aus dem Ordner hinaus zeigen. Das Packprogramm von Quillorent tut es: Wählen Sie es auf der Seite „Werkzeuge“, und entpacken Sie erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the archives, and its name is needed for what comes out of &quot;%2&quot;. Extract into another folder.</source>
        <translation>„%1“ ist eines der Archive, und sein Name wird für das gebraucht, was aus „%2“ herauskommt. Entpacken Sie in einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The set of &quot;%1&quot; seems incomplete or mixed: %2. Put all its volumes, and no others, into one folder.</source>
        <translation>Die Teile von „%1“ scheinen unvollständig oder gemischt zu sein: %2. Legen Sie alle Teile, und keine anderen, in einen Ordner.</translation>
    </message>
    <message>
        <source>No private key is chosen. Without it nothing that was encrypted for a certificate can be decrypted.</source>
        <translation>Es ist kein privater Schlüssel gewählt. Ohne ihn lässt sich nichts entschlüsseln, was für ein Zertifikat verschlüsselt wurde.</translation>
    </message>
    <message>
        <source>The private key &quot;%1&quot; can&apos;t be read.</source>
        <translation>Der private Schlüssel „%1“ ist nicht lesbar.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose the one that the archives were encrypted for.</source>
        <translation>Es ist kein Zertifikat gewählt. Wählen Sie das, für das die Archive verschlüsselt wurden.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; can&apos;t be read.</source>
        <translation>Das Zertifikat „%1“ ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the method, unless the name of what is in it tells.</source>
        <translation>Der Name von „%1“ sagt nicht, wie es verschlüsselt ist. Wählen Sie die Art der Verschlüsselung, es sei denn, der Name des Inhalts sagt es.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was encrypted by a password, and a certificate is chosen. Choose a password on the Password tab.</source>
        <translation>„%1“ wurde mit einem Passwort verschlüsselt, gewählt ist aber ein Zertifikat. Wählen Sie auf der Seite „Passwort“ ein Passwort.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>„%1“ ist ein Ordner, und eine Datei dieses Namens wird für eine Weile gebraucht. Benennen Sie ihn um.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It will get another name, which begins with &quot;kept&quot;, and stay.</source>
        <translation>„%1“ ist schon da, und sein Name wird für eine Weile gebraucht. Es wird einen anderen Namen bekommen, der mit „kept“ beginnt, und bleiben.</translation>
    </message>
    <message>
        <source>Two archives need the name &quot;%1&quot; for a while. They are extracted one after the other; what the second would replace goes into a folder of its own.</source>
        <translation>Zwei Archive brauchen für eine Weile den Namen „%1“. Sie werden nacheinander entpackt; was das zweite ersetzen würde, kommt in einen eigenen Ordner.</translation>
    </message>
    <message>
        <source>Single files are looked for in one archive at a time. Choose one archive, or of a set its first volume.</source>
        <translation>Einzelne Dateien lassen sich nur in einem Archiv auf einmal suchen. Wählen Sie ein Archiv, oder von einem in mehreren Teilen den ersten.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>„%1“, der Ordner zum Entpacken, existiert nicht oder ist kein Ordner. Schließen Sie den Datenträger an, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there any more, or can&apos;t be read.</source>
        <translation>„%1“ ist nicht mehr da oder nicht lesbar.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name are replaced.</source>
        <translation>Der Ordner zum Entpacken, „%1“, ist nicht leer. Gleichnamige Dateien werden ersetzt.</translation>
    </message>
    <message>
        <source>its name is that of a later volume</source>
        <translation>sein Name ist der eines späteren Teils</translation>
    </message>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>In das Archiv gesehen: Es enthält %n Datei oder Ordner.</numerusform>
            <numerusform>In das Archiv gesehen: Es enthält %n Dateien und Ordner.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>Ausgewähltes zurückgeholt, %n Datei oder Ordner, nach „%1“.</numerusform>
            <numerusform>Ausgewähltes zurückgeholt, %n Dateien und Ordner, nach „%1“.</numerusform>
        </translation>
    </message>
    <message>
        <source>Extracted %1 of %2 into &quot;%3&quot;.</source>
        <translation>%1 von %2 nach „%3“ entpackt.</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Cancelled. What was chosen may have been brought back in part.</source>
        <translation>Abgebrochen. Ausgewähltes kann zum Teil zurückgeholt sein.</translation>
    </message>
    <message>
        <source>Cancelled. Files left in the extraction folder may be incomplete.</source>
        <translation>Abgebrochen. Dateien, die im Ordner zum Entpacken blieben, können unvollständig sein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what would have replaced files of another archive.</source>
        <translation>In „%1“ liegt, was Dateien eines anderen Archivs ersetzt hätte.</translation>
    </message>
    <message>
        <source>Not extracted, as they look like later volumes: %1.</source>
        <translation>Nicht entpackt, weil sie wie spätere Teile aussehen: %1.</translation>
    </message>
    <message>
        <source>volume %1 is there twice, so some are leftovers of another backup</source>
        <translation>Teil %1 ist doppelt da, also sind einige von einer anderen Sicherung übrig</translation>
    </message>
    <message>
        <source>volume %1 is missing</source>
        <translation>Teil %1 fehlt</translation>
    </message>
    <message>
        <source>all volumes but the first are missing</source>
        <translation>alle Teile außer dem ersten fehlen</translation>
    </message>
    <message>
        <source>volume %1 is shorter than the one before it. Either it was cut short, or it is the last one, and those from volume %2 on are leftovers of a larger backup</source>
        <translation>Teil %1 ist kürzer als der vor ihm. Entweder wurde er abgeschnitten, oder er ist der letzte, und die ab Teil %2 sind von einer größeren Sicherung übrig</translation>
    </message>
    <message>
        <source>volume %1 is as large as those before it, so it may not be the last</source>
        <translation>Teil %1 ist so groß wie die vor ihm, also womöglich nicht der letzte</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not hold the file &quot;%2&quot; that its name promises. Give the archive back the name that it had; if it never had another one, no backup has made it.</source>
        <translation>„%1“ enthält nicht die Datei „%2“, die der Name verspricht. Geben Sie dem Archiv den Namen zurück, den es hatte; hatte es nie einen anderen, stammt es von keiner Sicherung.</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; was decrypted to is no archive. The private key is wrong, or no backup has made the archive.</source>
        <translation>Was beim Entschlüsseln von „%1“ herauskam, ist kein Archiv. Der private Schlüssel ist falsch, oder das Archiv stammt von keiner Sicherung.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing of yours was changed.</source>
        <translation>Abgebrochen. Von Ihren Dateien wurde nichts verändert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link</source>
        <translation>„%1“ ist eine Verknüpfung</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>%n Datei aus „%1“ kann in „%2“ nicht angelegt werden, nämlich: %3. Alles andere ist da. Entpacken Sie in einen Ordner auf einem anderen Datenträger, um auch sie zu bekommen.</numerusform>
            <numerusform>%n Dateien aus „%1“ können in „%2“ nicht angelegt werden, zuerst diese: %3. Alles andere ist da. Entpacken Sie in einen Ordner auf einem anderen Datenträger, um auch sie zu bekommen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>extraction</name>
    <message>
        <source>No archives are chosen. Add those that are to be extracted.</source>
        <translation>Es sind keine Archive gewählt. Fügen Sie die hinzu, die entpackt werden sollen.</translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is extracted.</source>
        <translation>Es ist kein Passwort angegeben. Tippen Sie eines auf der Seite „Passwort“ ein; ohne Passwort wird nichts entpackt.</translation>
    </message>
    <message>
        <source>No extraction folder is chosen. Choose the folder that the contents go to.</source>
        <translation>Es ist kein Ordner zum Entpacken gewählt. Wählen Sie den Ordner, in den der Inhalt kommt.</translation>
    </message>
    <message>
        <source>The extraction folder that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>Der angezeigte Ordner zum Entpacken ist nicht der dieses Profils. Wählen Sie ihn erneut.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>Es ist kein Zertifikat gewählt. Wählen Sie eines auf der Seite „Passwort“.</translation>
    </message>
    <message>
        <source>No archive is chosen. Add the one that has the file.</source>
        <translation>Es ist kein Archiv gewählt. Fügen Sie das hinzu, das die Datei enthält.</translation>
    </message>
    <message>
        <source>Add archives</source>
        <translation>Archive hinzufügen</translation>
    </message>
    <message>
        <source>There is no archive among them: archives end in &quot;.rar&quot;.</source>
        <translation>Darunter ist kein Archiv: Archive enden auf &quot;.rar&quot;.</translation>
    </message>
    <message>
        <source>Choose where the archives are extracted to</source>
        <translation>Ordner zum Entpacken der Archive wählen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made. Choose another one.</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Testing the archives…</source>
        <translation>Archive werden geprüft…</translation>
    </message>
    <message>
        <source>Testing &quot;%1&quot;…</source>
        <translation>„%1“ wird geprüft…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Es wird zurückgeholt…</translation>
    </message>
    <message>
        <source>Looking into &quot;%1&quot;…</source>
        <translation>In „%1“ wird nachgesehen…</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>a pipe, a socket or a device</source>
        <translation>eine Pipe, ein Socket oder ein Gerät</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link or a file in the destination, where a folder is needed</source>
        <translation>„%1“ ist im Ziel eine Verknüpfung oder eine Datei, wo ein Ordner gebraucht wird</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>There may not be enough room: about %1 are needed, and %2 are free in &quot;%3&quot;.</source>
        <translation>Der Platz reicht womöglich nicht: Etwa %1 werden gebraucht, und %2 sind frei in „%3“.</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;: %2. Choose another folder, or change its permissions.</source>
        <translation>In „%1“ darf nichts geschrieben werden: %2. Wählen Sie einen anderen Ordner, oder ändern Sie die Zugriffsrechte.</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>eine Datei</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>eine Verknüpfung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder</source>
        <translation>„%1“ ist ein Ordner</translation>
    </message>
</context>
<context>
    <name>folders</name>
    <message>
        <source>The password is that of the account &quot;%1&quot;, and the account that is chosen is &quot;%2&quot;. Fetch its password on the Password tab, or choose the other account again.</source>
        <translation>Das Passwort ist das des Kontos „%1“, gewählt ist aber das Konto „%2“. Holen Sie auf der Seite „Passwort“ dessen Passwort, oder wählen Sie wieder das andere Konto.</translation>
    </message>
    <message>
        <source>Add folders and files</source>
        <translation>Ordner und Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Choose the destination of the archives</source>
        <translation>Ziel der Archive wählen</translation>
    </message>
</context>
<context>
    <name>headless</name>
    <message>
        <source>The profile encrypts for a certificate; a password does not go with it.</source>
        <translation>Das Profil verschlüsselt für ein Zertifikat; ein Passwort passt nicht dazu.</translation>
    </message>
    <message>
        <source>There is no archive &quot;%1&quot;.</source>
        <translation>Es gibt kein Archiv „%1“.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name would be replaced.</source>
        <translation>Der Ordner zum Entpacken, „%1“, ist nicht leer. Gleichnamige Dateien würden ersetzt.</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>Es gibt keine Profile.</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;; there are: %2.</source>
        <translation>Es gibt kein Profil „%1“; es gibt: %2.</translation>
    </message>
    <message>
        <source>Try &quot;quillorent-run --help&quot;.</source>
        <translation>Versuchen Sie &quot;quillorent-run --help&quot;.</translation>
    </message>
    <message>
        <source>Runs what Quillorent&apos;s window runs, without a window.

Commands:
  backup [PROFILE]                  back up the folders of a profile
  extract [PROFILE] -- ARCHIVE...   turn archives back into folders; of a set the first volume,
                                    or a folder of archives
  list [PROFILE] -- ARCHIVE         tell what an archive holds: bytes, time, path, separated by
                                    tabs; needs the password, room and time as extract does
  sync [PROFILE]                    synchronise the files and folders of a profile
  tools                             list the external tools: name, path, ok or not
  profiles                          list the profiles; * marks the one opened at start-up

Exit status: 0 done, 1 failed or cancelled, 2 could not start, or was not to
go on (see --yes), 64 wrong usage.</source>
        <translation>Führt aus, was das Fenster von Quillorent ausführt, ohne Fenster.

Befehle:
  backup [PROFILE]                  die Ordner eines Profils sichern
  extract [PROFILE] -- ARCHIVE...   aus Archiven wieder Ordner machen; von mehreren Teilen den
                                    ersten, oder einen Ordner mit Archiven
  list [PROFILE] -- ARCHIVE         den Inhalt eines Archivs nennen: Bytes, Zeit, Pfad, durch Tabs
                                    getrennt; braucht Passwort, Platz und Zeit wie extract
  sync [PROFILE]                    die Dateien und Ordner eines Profils abgleichen
  tools                             die externen Werkzeuge nennen: Name, Pfad, ok oder nicht
  profiles                          die Profile nennen; * steht bei dem, das beim Start öffnet

Endstatus: 0 getan, 1 fehlgeschlagen oder abgebrochen, 2 konnte nicht beginnen oder
sollte nicht fortfahren (siehe --yes), 64 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Diesen Text zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE; - is standard input.</source>
        <translation>Das Passwort aus der ersten Zeile von FILE nehmen; - ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given several times. Nothing is replaced: what is there gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Nur PATH zurückholen, eine Datei oder einen Ordner des einen Archivs, wie list es nennt; mehrmals möglich. Ersetzt wird nichts: Was schon da ist, bekommt einen Namen, der mit „kept-“ beginnt.</translation>
    </message>
    <message>
        <source>Extract into FOLDER instead of the profile&apos;s extraction folder.</source>
        <translation>Nach FOLDER entpacken statt in den Ordner des Profils.</translation>
    </message>
    <message>
        <source>Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive&apos;s name.</source>
        <translation>Entschlüsseln nach METHOD: aes, bf, 3d, smime, oder auto, nach dem Namen des Archivs.</translation>
    </message>
    <message>
        <source>Go on in spite of what is found before the run: archives that will be replaced, too little room, files that will be deleted, and the like. What would lose files is refused all the same.</source>
        <translation>Fortfahren trotz allem, was vor dem Lauf gefunden wird: Archive, die ersetzt werden, zu wenig Platz, Dateien, die gelöscht werden, und Ähnliches. Was Dateien kosten würde, wird trotzdem verweigert.</translation>
    </message>
    <message>
        <source>Print the run&apos;s record on standard output when it has ended.</source>
        <translation>Am Ende das Protokoll des Laufs auf der Standardausgabe ausgeben.</translation>
    </message>
    <message>
        <source>Show progress even where no terminal is.</source>
        <translation>Fortschritt auch ohne Terminal zeigen.</translation>
    </message>
    <message>
        <source>backup, extract, list, sync, tools or profiles.</source>
        <translation>backup, extract, list, sync, tools oder profiles.</translation>
    </message>
    <message>
        <source>The profile; without it the one that the window would open.</source>
        <translation>Das Profil; ohne Angabe das, welches das Fenster öffnen würde.</translation>
    </message>
    <message>
        <source>A command is missing: backup, extract, list, sync, tools or profiles.</source>
        <translation>Ein Befehl fehlt: backup, extract, list, sync, tools oder profiles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; there are backup, extract, list, sync, tools and profiles.</source>
        <translation>„%1“ ist kein Befehl; es gibt backup, extract, list, sync, tools und profiles.</translation>
    </message>
    <message>
        <source>Archives are missing: name them behind &quot;--&quot;.</source>
        <translation>Archive fehlen: Nennen Sie sie hinter &quot;--&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many.</source>
        <translation>„%1“ ist ein Wort zu viel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; passt nicht zu &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method; there are %2.</source>
        <translation>„%1“ ist keine Art der Verschlüsselung; es gibt %2.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>Standardeingabe</translation>
    </message>
    <message>
        <source>The first line of %1 is longer than any password can be. Give a file whose first line is the password alone.</source>
        <translation>Die erste Zeile ist länger, als ein Passwort sein kann (%1). Geben Sie eine Datei an, deren erste Zeile nur das Passwort ist.</translation>
    </message>
    <message>
        <source>The password in %1 is not UTF-8 text. Save the file as UTF-8.</source>
        <translation>Das Passwort ist kein Text in UTF-8 (%1). Speichern Sie die Datei als UTF-8.</translation>
    </message>
    <message>
        <source>what was typed</source>
        <translation>das Eingetippte</translation>
    </message>
    <message>
        <source>The first line of %1 is empty. Write the password there.</source>
        <translation>Die erste Zeile ist leer (%1). Schreiben Sie das Passwort dorthin.</translation>
    </message>
    <message>
        <source>Can&apos;t read the password from %1: %2. Give another file.</source>
        <translation>Das Passwort ist nicht lesbar (%1): %2. Geben Sie eine andere Datei an.</translation>
    </message>
    <message>
        <source>The password was not typed the same way twice. Nothing was done.</source>
        <translation>Das Passwort wurde nicht zweimal gleich eingetippt. Es wurde nichts getan.</translation>
    </message>
    <message>
        <source>Say --yes to go on all the same.</source>
        <translation>Mit --yes geht es trotzdem weiter.</translation>
    </message>
    <message>
        <source>No password was typed. Nothing was done.</source>
        <translation>Es wurde kein Passwort eingetippt. Es wurde nichts getan.</translation>
    </message>
    <message>
        <source>Password for the archives: </source>
        <translation>Passwort für die Archive: </translation>
    </message>
    <message>
        <source>The same password again: </source>
        <translation>Dasselbe Passwort noch einmal: </translation>
    </message>
    <message>
        <source>The two passwords are not the same. Type both again.</source>
        <translation>Die beiden Passwörter sind nicht gleich. Geben Sie beide noch einmal ein.</translation>
    </message>
    <message>
        <source>Do the same again, or remove them.</source>
        <translation>Wiederholen Sie den Vorgang, oder entfernen Sie sie.</translation>
    </message>
</context>
<context>
    <name>keychain</name>
    <message>
        <source>The keychain did what it was asked to.</source>
        <translation>Der Schlüsselbund hat getan, worum er gebeten wurde.</translation>
    </message>
    <message>
        <source>The keychain holds no such password.</source>
        <translation>Der Schlüsselbund enthält kein solches Passwort.</translation>
    </message>
    <message>
        <source>The keychain holds a password of that name already. It stays as it is: remove it with your desktop&apos;s password program first, or choose another account name.</source>
        <translation>Der Schlüsselbund enthält schon ein Passwort dieses Namens. Es bleibt, wie es ist: Entfernen Sie es zuerst mit dem Passwortprogramm Ihrer Arbeitsumgebung, oder wählen Sie einen anderen Kontonamen.</translation>
    </message>
    <message>
        <source>No keychain service runs in this session. Start one (any Secret Service will do), or type the password.</source>
        <translation>In dieser Sitzung läuft kein Schlüsselbund-Dienst. Starten Sie einen (jeder Secret Service genügt), oder tippen Sie das Passwort ein.</translation>
    </message>
    <message>
        <source>The keychain service has no default keychain. Create one with your desktop&apos;s password program.</source>
        <translation>Der Schlüsselbund-Dienst hat keinen Standard-Schlüsselbund. Legen Sie mit dem Passwortprogramm Ihrer Arbeitsumgebung einen an.</translation>
    </message>
    <message>
        <source>The keychain is locked. Unlock it and try again.</source>
        <translation>Der Schlüsselbund ist gesperrt. Entsperren Sie ihn, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The keychain is still locked: its password was not given, or it could not be asked for. Try again, or unlock it with your desktop&apos;s password program.</source>
        <translation>Der Schlüsselbund ist noch gesperrt: Sein Passwort wurde nicht angegeben oder konnte nicht erfragt werden. Versuchen Sie es erneut, oder entsperren Sie ihn mit dem Passwortprogramm Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>The keychain service refused. Look at your desktop&apos;s password program for the reason.</source>
        <translation>Der Schlüsselbund-Dienst hat sich geweigert. Sehen Sie im Passwortprogramm Ihrer Arbeitsumgebung nach dem Grund.</translation>
    </message>
    <message>
        <source>The keychain service does not answer. Try again later, or restart it; whether it stored something shows when it answers again.</source>
        <translation>Der Schlüsselbund-Dienst antwortet nicht. Versuchen Sie es später erneut, oder starten Sie ihn neu; ob er etwas abgelegt hat, zeigt sich, wenn er wieder antwortet.</translation>
    </message>
    <message>
        <source>The keychain was not waited for any longer.</source>
        <translation>Auf den Schlüsselbund wurde nicht länger gewartet.</translation>
    </message>
    <message>
        <source>That password is not in the keychain.</source>
        <translation>Dieses Passwort ist nicht im Schlüsselbund.</translation>
    </message>
    <message>
        <source>A password of this kind does not have that attribute.</source>
        <translation>Ein Passwort dieser Art hat diese Eigenschaft nicht.</translation>
    </message>
    <message>
        <source>The keychain can&apos;t hold that name: it is missing, or is no proper text.</source>
        <translation>Der Schlüsselbund kann diesen Namen nicht aufnehmen: Er fehlt oder ist kein richtiger Text.</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>(no subject)</source>
        <translation>(ohne Inhaber)</translation>
    </message>
    <message>
        <source>%1%2 – valid from %3 to %4</source>
        <translation>%1%2 – gültig von %3 bis %4</translation>
    </message>
    <message>
        <source>This certificate is not valid before %1. Check the computer&apos;s clock, or choose another one.</source>
        <translation>Dieses Zertifikat gilt erst ab %1. Prüfen Sie die Uhr des Rechners, oder wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>This certificate has expired on %1. What it encrypted still opens with its private key; for new archives choose one that is valid.</source>
        <translation>Dieses Zertifikat ist am %1 abgelaufen. Was es verschlüsselt hat, öffnet sich weiterhin mit seinem privaten Schlüssel; wählen Sie für neue Archive eines, das gilt.</translation>
    </message>
    <message>
        <source>This certificate expires today.</source>
        <translation>Dieses Zertifikat läuft heute ab.</translation>
    </message>
    <message>
        <source>This certificate expires tomorrow.</source>
        <translation>Dieses Zertifikat läuft morgen ab.</translation>
    </message>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>Dieses Zertifikat läuft in %n Tag ab, am %1.</numerusform>
            <numerusform>Dieses Zertifikat läuft in %n Tagen ab, am %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>der Name fehlt</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>Es wurde keine Datei gewählt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: %2.</source>
        <translation>„%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>„%1“ ist leer.</translation>
    </message>
    <message>
        <source>

OpenSSL says: </source>
        <translation>

OpenSSL sagt: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like a certificate, but can&apos;t be read as one. It may be damaged.</source>
        <translation>„%1“ sieht wie ein Zertifikat aus, ist als solches aber nicht lesbar. Vielleicht ist es beschädigt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a private key, not a certificate. Choose the certificate that belongs to it here, and this file as the private key.</source>
        <translation>„%1“ enthält einen privaten Schlüssel, kein Zertifikat. Wählen Sie hier das Zertifikat, das dazugehört, und diese Datei als privaten Schlüssel.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out with:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</source>
        <translation>„%1“ ist ein PKCS#12-Container. Nur PEM, die Textform, wird angenommen. Nehmen Sie das Zertifikat heraus mit:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it with:

openssl x509 -inform DER -in FILE -out certificate.pem</source>
        <translation>„%1“ ist nicht PEM, sondern binär (DER). Nur PEM, die Textform, wird angenommen. Wandeln Sie es um mit:

openssl x509 -inform DER -in FILE -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no PEM certificate: such a file has a line &quot;-----BEGIN CERTIFICATE-----&quot;.</source>
        <translation>„%1“ ist kein PEM-Zertifikat: In einer solchen Datei steht eine Zeile &quot;-----BEGIN CERTIFICATE-----&quot;.</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is encrypted with a pass phrase, which the program can&apos;t give to OpenSSL. Make a copy without one, and keep it where nobody else can read it:

openssl rsa -in FILE -out key.pem</source>
        <translation>Der private Schlüssel in „%1“ ist mit einem Passwort verschlüsselt, das Quillorent nicht an OpenSSL weitergeben kann. Machen Sie eine Kopie ohne Passwort, und bewahren Sie sie auf, wo niemand sonst sie lesen kann:

openssl rsa -in FILE -out key.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a certificate, not a private key. Choose the private key that belongs to the certificate.</source>
        <translation>„%1“ enthält ein Zertifikat, keinen privaten Schlüssel. Wählen Sie den privaten Schlüssel, der zum Zertifikat gehört.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Take the private key out with:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</source>
        <translation>„%1“ ist ein PKCS#12-Container. Nehmen Sie den privaten Schlüssel heraus mit:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is not an RSA key. Only RSA keys, with RSA certificates, can be used.</source>
        <translation>Der private Schlüssel in „%1“ ist kein RSA-Schlüssel. Nur RSA-Schlüssel, mit RSA-Zertifikaten, sind verwendbar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no private key that can be read. It must be an RSA key in PEM, the text form.</source>
        <translation>„%1“ enthält keinen lesbaren privaten Schlüssel. Es muss ein RSA-Schlüssel in PEM sein, der Textform.</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; does not belong to the certificate &quot;%2&quot;. Choose the key that the certificate was made with; no other one opens what the certificate encrypts.</source>
        <translation>Der private Schlüssel in „%1“ gehört nicht zum Zertifikat „%2“. Wählen Sie den Schlüssel, mit dem das Zertifikat gemacht wurde; kein anderer öffnet, was das Zertifikat verschlüsselt.</translation>
    </message>
    <message>
        <source>No certificate is chosen yet. Choose it first: a private key is accepted only with the certificate that it belongs to.</source>
        <translation>Es ist noch kein Zertifikat gewählt. Wählen Sie es zuerst: Ein privater Schlüssel wird nur mit dem Zertifikat angenommen, zu dem er gehört.</translation>
    </message>
    <message>
        <source>The certificate itself can&apos;t be used any more. </source>
        <translation>Das Zertifikat selbst ist nicht mehr verwendbar. </translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is backed up.</source>
        <translation>Es ist kein Passwort angegeben. Tippen Sie eines auf der Seite „Passwort“ ein; ohne Passwort wird nichts gesichert.</translation>
    </message>
    <message>
        <source>The password holds a zero byte (is its file perhaps UTF-16?), and all behind it would be lost. Use a password of ordinary characters, in UTF-8.</source>
        <translation>Das Passwort enthält ein Nullbyte (ist seine Datei vielleicht in UTF-16?), und alles dahinter ginge verloren. Verwenden Sie ein Passwort aus gewöhnlichen Zeichen, in UTF-8.</translation>
    </message>
    <message>
        <source>The password holds a line break, and all behind it would be lost. Use one of a single line.</source>
        <translation>Das Passwort enthält einen Zeilenumbruch, und alles dahinter ginge verloren. Verwenden Sie eines aus einer einzigen Zeile.</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes, and would be cut. Use a shorter one.</source>
        <translation>Das Passwort ist länger als %1 Byte und würde abgeschnitten. Verwenden Sie ein kürzeres.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>Es ist kein Zertifikat gewählt. Wählen Sie eines auf der Seite „Passwort“.</translation>
    </message>
    <message>
        <source>The key of the certificate &quot;%1&quot; has %2 bits; less than %3 can be broken.</source>
        <translation>Der Schlüssel des Zertifikats „%1“ hat %2 Bit; weniger als %3 lassen sich brechen.</translation>
    </message>
    <message>
        <source>%1, %2 bits</source>
        <translation>%1, %2 Bit</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>unbekannte Art</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; is not there, or can&apos;t be read. Choose another one on the Password tab.</source>
        <translation>Das Zertifikat „%1“ ist nicht da oder nicht lesbar. Wählen Sie ein anderes auf der Seite „Passwort“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is chosen as the certificate, but it is a private key. Choose the certificate that belongs to it on the Password tab.</source>
        <translation>„%1“ ist als Zertifikat gewählt, ist aber ein privater Schlüssel. Wählen Sie das zugehörige Zertifikat auf der Seite „Passwort“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no certificate in the form that is needed here, which is PEM, a text file. Choose another one on the Password tab.</source>
        <translation>„%1“ ist kein Zertifikat in der Form, die hier nötig ist, nämlich PEM, einer Textdatei. Wählen Sie ein anderes auf der Seite „Passwort“.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; has a key of another kind than RSA, and only RSA keys can be used here. Choose another one on the Password tab.</source>
        <translation>Das Zertifikat „%1“ hat einen anderen als einen RSA-Schlüssel, und nur solche sind hier verwendbar. Wählen Sie ein anderes auf der Seite „Passwort“.</translation>
    </message>
</context>
<context>
    <name>outlets</name>
    <message>
        <source>Wait...</source>
        <translation>Warten...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>passwords</name>
    <message>
        <source>Nothing that is encrypted for this certificate can be opened without its private key: make sure that you have it, and a copy in a safe place.</source>
        <translation>Was für dieses Zertifikat verschlüsselt ist, lässt sich ohne dessen privaten Schlüssel nicht öffnen: Vergewissern Sie sich, dass Sie ihn haben, und eine Kopie an sicherem Ort.</translation>
    </message>
    <message>
        <source>No private key is chosen. </source>
        <translation>Es ist kein privater Schlüssel gewählt. </translation>
    </message>
    <message>
        <source>The private key is not where it was. </source>
        <translation>Der private Schlüssel ist nicht mehr, wo er war. </translation>
    </message>
    <message>
        <source>Choose a certificate</source>
        <translation>Zertifikat wählen</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Privaten Schlüssel wählen</translation>
    </message>
    <message>
        <source>It is no text, in UTF-8. Another program stored it: choose another account.</source>
        <translation>Es ist kein Text in UTF-8. Ein anderes Programm hat es abgelegt: Wählen Sie ein anderes Konto.</translation>
    </message>
    <message>
        <source>The password of &quot;%1&quot; was fetched from the keychain.</source>
        <translation>Das Passwort von „%1“ wurde aus dem Schlüsselbund geholt.</translation>
    </message>
    <message>
        <source>The keychain holds no password of &quot;%1&quot;. Check the account name; or type the password and store it.</source>
        <translation>Der Schlüsselbund enthält kein Passwort von „%1“. Prüfen Sie den Kontonamen; oder tippen Sie das Passwort ein, und legen Sie es ab.</translation>
    </message>
    <message>
        <source>What the keychain holds of &quot;%1&quot; is of no use. </source>
        <translation>Was der Schlüsselbund zu „%1“ enthält, ist nicht verwendbar. </translation>
    </message>
    <message>
        <source>Nothing was stored. </source>
        <translation>Es wurde nichts abgelegt. </translation>
    </message>
    <message>
        <source>The password was stored in the keychain for &quot;%1&quot;.</source>
        <translation>Das Passwort wurde für „%1“ im Schlüsselbund abgelegt.</translation>
    </message>
    <message>
        <source>The keychain holds a password of &quot;%1&quot; already, and it stays as it is. Choose another account name, or remove the old one in your desktop&apos;s password program first.</source>
        <translation>Der Schlüsselbund enthält schon ein Passwort von „%1“, und es bleibt, wie es ist. Wählen Sie einen anderen Kontonamen, oder entfernen Sie zuerst das alte im Passwortprogramm Ihrer Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>The keychain is unlocked.</source>
        <translation>Der Schlüsselbund ist entsperrt.</translation>
    </message>
    <message>
        <source>Asking the keychain…</source>
        <translation>Der Schlüsselbund wird gefragt…</translation>
    </message>
</context>
<context>
    <name>plist</name>
    <message>
        <source>declarations within the document are not supported</source>
        <translation>Deklarationen innerhalb des Dokuments werden nicht unterstützt</translation>
    </message>
    <message>
        <source>it holds a tag of more than %1 characters</source>
        <translation>sie enthält ein Tag mit mehr als %1 Zeichen</translation>
    </message>
    <message>
        <source>%1: it can&apos;t be written: %2</source>
        <translation>%1: nicht zu schreiben: %2</translation>
    </message>
    <message>
        <source>its links lead in a circle</source>
        <translation>ihre Verknüpfungen führen im Kreis</translation>
    </message>
    <message>
        <source>the root element is &lt;%1&gt;, not &lt;plist&gt;</source>
        <translation>das Wurzelelement ist &lt;%1&gt;, nicht &lt;plist&gt;</translation>
    </message>
    <message>
        <source>the list is empty</source>
        <translation>die Liste ist leer</translation>
    </message>
    <message>
        <source>the root is &lt;%1&gt;, not a dictionary</source>
        <translation>die Wurzel ist &lt;%1&gt;, kein Wörterbuch</translation>
    </message>
    <message>
        <source>something follows the root dictionary</source>
        <translation>nach dem Wörterbuch der Wurzel folgt noch etwas</translation>
    </message>
    <message>
        <source>there is text between the elements</source>
        <translation>zwischen den Elementen steht Text</translation>
    </message>
    <message>
        <source>entities are not supported</source>
        <translation>Entitäten werden nicht unterstützt</translation>
    </message>
    <message>
        <source>its encoding is %1, not UTF-8</source>
        <translation>ihre Kodierung ist %1, nicht UTF-8</translation>
    </message>
    <message>
        <source>the document type is not that of a property list</source>
        <translation>der Dokumenttyp ist nicht der einer Property-Liste</translation>
    </message>
    <message>
        <source>the attribute %1 is unknown</source>
        <translation>das Attribut %1 ist unbekannt</translation>
    </message>
    <message>
        <source>version %1 of the format is unknown</source>
        <translation>Version %1 des Formats ist unbekannt</translation>
    </message>
    <message>
        <source>the key %1 is there twice</source>
        <translation>der Schlüssel %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>the key %1 has no value</source>
        <translation>der Schlüssel %1 hat keinen Wert</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands where a key is expected</source>
        <translation>&lt;%1&gt; steht, wo ein Schlüssel erwartet wird</translation>
    </message>
    <message>
        <source>it is nested deeper than %1 levels</source>
        <translation>sie ist tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>the element &lt;%1&gt; is unknown</source>
        <translation>das Element &lt;%1&gt; ist unbekannt</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>the integer %1 does not fit into 64 bits</source>
        <translation>die ganze Zahl %1 passt nicht in 64 Bit</translation>
    </message>
    <message>
        <source>“%1” is not a real number</source>
        <translation>„%1“ ist keine reelle Zahl</translation>
    </message>
    <message>
        <source>the data is not Base64</source>
        <translation>die Daten sind nicht in Base64</translation>
    </message>
    <message>
        <source>“%1” is not a date like 2001-12-31T23:59:59Z</source>
        <translation>„%1“ ist kein Datum wie 2001-12-31T23:59:59Z</translation>
    </message>
    <message>
        <source>there is text in &lt;true&gt; or &lt;false&gt;</source>
        <translation>in &lt;true&gt; oder &lt;false&gt; steht Text</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it is a binary property list; only XML ones can be read</source>
        <translation>es ist eine binäre Property-Liste; nur solche in XML sind lesbar</translation>
    </message>
    <message>
        <source>%1: it is not UTF-8</source>
        <translation>%1: nicht in UTF-8</translation>
    </message>
    <message>
        <source>it can&apos;t be put into XML</source>
        <translation>der Inhalt lässt sich nicht in XML fassen</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB</source>
        <translation>sie würde größer als %1 MiB</translation>
    </message>
    <message>
        <source>there is nothing to write</source>
        <translation>es gibt nichts zu schreiben</translation>
    </message>
    <message>
        <source>it has a character that such a file can&apos;t hold (%1)</source>
        <translation>sie enthält ein Zeichen, das in einer solchen Datei nicht stehen kann (%1)</translation>
    </message>
    <message>
        <source>the value under “%2” is nested deeper than %1 levels</source>
        <translation>der Wert unter „%2“ ist tiefer als %1 Ebenen verschachtelt</translation>
    </message>
    <message>
        <source>the value under “%1” is a date that the file can&apos;t hold</source>
        <translation>der Wert unter „%1“ ist ein Datum, das in der Datei nicht stehen kann</translation>
    </message>
    <message>
        <source>the value under “%2” has a character that the file can&apos;t hold (%1)</source>
        <translation>der Wert unter „%2“ enthält ein Zeichen, das in der Datei nicht stehen kann (%1)</translation>
    </message>
</context>
<context>
    <name>profiles</name>
    <message>
        <source>A profile needs a name, and none was typed.</source>
        <translation>Ein Profil braucht einen Namen, und es wurde keiner eingetippt.</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Choose another name.</source>
        <translation>Es gibt schon ein Profil „%1“. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>There can be no profiles, for their file can&apos;t be read:
%1
Repair it, or move it away, and start the program again.</source>
        <translation>Es kann keine Profile geben, denn ihre Datei ist nicht lesbar:
%1
Reparieren Sie sie, oder verschieben Sie sie, und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>No copy could be saved either:
%1</source>
        <translation>Auch eine Kopie konnte nicht gespeichert werden:
%1</translation>
    </message>
    <message>
        <source>Choose a folder for the copy</source>
        <translation>Ordner für die Kopie wählen</translation>
    </message>
    <message>
        <source>Another window or program has changed the file of the %1 since it was read here, and both of you have changed %2.

Whichever you choose, the other one is kept beside the file. What only one of you has changed is saved in any case.</source>
        <translation>Ein anderes Fenster oder Programm hat die Datei der %1 geändert, seit sie hier gelesen wurde, und %2 wurde auf beiden Seiten geändert.

Was Sie auch wählen, das andere bleibt neben der Datei erhalten. Was nur auf einer Seite geändert wurde, wird auf jeden Fall gespeichert.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be saved, for their file could not be read:
%2

Repair it, or move it away, and start the program again.</source>
        <translation>Die %1 lassen sich nicht speichern, denn ihre Datei war nicht lesbar:
%2

Reparieren Sie sie, oder verschieben Sie sie, und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>Another window or program has changed %1: that is taken over.</source>
        <translation>Ein anderes Fenster oder Programm hat %1 geändert: Das ist übernommen.</translation>
    </message>
    <message>
        <source>The %1 could not be saved:
%2

What you changed is kept only as long as the program runs. Make room, or make the folder writable, and save again.</source>
        <translation>Die %1 ließen sich nicht speichern:
%2

Was Sie geändert haben, bleibt nur, solange das Programm läuft. Schaffen Sie Platz, oder machen Sie den Ordner beschreibbar, und speichern Sie erneut.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message>
        <source>the program was ended in the middle of it</source>
        <translation>das Programm wurde mittendrin beendet</translation>
    </message>
    <message>
        <source>The program was ended before the run was.</source>
        <translation>Das Programm wurde vor dem Lauf beendet.</translation>
    </message>
    <message>
        <source>no other name is free for it</source>
        <translation>dafür ist kein anderer Name frei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>„%1“ ist ein Ordner, und eine Datei dieses Namens wird für eine Weile gebraucht. Benennen Sie ihn um.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way and can&apos;t be given another name: %2.</source>
        <translation>„%1“ ist im Weg und lässt sich nicht umbenennen: %2.</translation>
    </message>
    <message>
        <source>Something puts %1 under the name &quot;%2&quot; again and again. Choose a folder that nobody else writes to.</source>
        <translation>Etwas legt unter dem Namen „%2“ immer wieder etwas an (%1). Wählen Sie einen Ordner, in den niemand sonst schreibt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been replaced by %2 of somebody else&apos;s. Choose a folder that nobody else writes to.</source>
        <translation>„%1“ wurde durch etwas Fremdes ersetzt (%2). Wählen Sie einen Ordner, in den niemand sonst schreibt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be made: %2</source>
        <translation>„%1“ lässt sich nicht anlegen: %2</translation>
    </message>
    <message>
        <source>%1: the tool ended with status %2 and did not say why.</source>
        <translation>%1: Das Werkzeug endete mit Status %2 und sagte nicht, warum.</translation>
    </message>
    <message>
        <source>%1: the tool said nothing, and did not make &quot;%2&quot;.</source>
        <translation>%1: Das Werkzeug sagte nichts und machte „%2“ nicht.</translation>
    </message>
    <message>
        <source>Another run is writing into &quot;%1&quot;, or its tools still are. Wait until it has ended.</source>
        <translation>Ein anderer Lauf schreibt in „%1“, oder seine Werkzeuge tun es noch. Warten Sie, bis er zu Ende ist.</translation>
    </message>
    <message>
        <source>Collecting</source>
        <translation>Sammeln</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Verschlüsseln</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Packen</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Abschließen</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Entpacken</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Entschlüsseln</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>An seinen Ort legen</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Noch ein paar Sekunden</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Noch etwa %1 s</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Noch etwa %1 min</translation>
    </message>
    <message>
        <source>About %1 h left</source>
        <translation>Noch etwa %1 h</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was in the way and is called &quot;%2&quot; now.</source>
        <translation>„%1“ war im Weg und heißt jetzt „%2“.</translation>
    </message>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>%n weitere Datei war im Weg; ihr Name beginnt jetzt mit „kept-“.</numerusform>
            <numerusform>%n weitere Dateien waren im Weg; ihre Namen beginnen jetzt mit „kept-“.</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; can&apos;t be made</source>
        <translation>der Ordner „%1“ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>It can&apos;t be written down what this run does: %1. If it is interrupted, nobody could tell what it leaves from files of your own.</source>
        <translation>Was dieser Lauf tut, lässt sich nicht festhalten: %1. Wird er unterbrochen, wäre das, was er zurücklässt, von Ihren eigenen Dateien nicht zu unterscheiden.</translation>
    </message>
    <message>
        <source>The OpenSSL program that is chosen on the Tools tab makes something else of a password than these archives need, so it can&apos;t open them. Choose Quillorent&apos;s own there; the password may be right.</source>
        <translation>Das OpenSSL-Programm, das auf der Seite „Werkzeuge“ gewählt ist, macht aus einem Passwort etwas anderes, als diese Archive brauchen, und kann sie deshalb nicht öffnen. Wählen Sie dort das von Quillorent; das Passwort kann richtig sein.</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>“%1” may not be written, nor moved out of the way: what is changed can&apos;t be saved.</source>
        <translation>„%1“ darf weder beschrieben noch beiseitegelegt werden: Änderungen können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>“%1” may not be written by this user. It is kept as “%2”, and a new one with the program&apos;s own settings has taken its place.</source>
        <translation>Dieses Benutzerkonto darf „%1“ nicht beschreiben. Die Datei bleibt als „%2“ erhalten, und eine neue mit den Voreinstellungen des Programms ist an ihre Stelle getreten.</translation>
    </message>
    <message>
        <source>“%1” could not be read when it was saved over. What it held is kept as “%2”.</source>
        <translation>„%1“ war nicht lesbar, als es überschrieben wurde. Was es enthielt, bleibt als „%2“ erhalten.</translation>
    </message>
    <message>
        <source>What others had changed in “%1” is kept as “%2”.</source>
        <translation>Was andere in „%1“ geändert hatten, bleibt als „%2“ erhalten.</translation>
    </message>
    <message>
        <source>What you had changed in “%1” is kept as “%2”.</source>
        <translation>Was Sie in „%1“ geändert hatten, bleibt als „%2“ erhalten.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made</source>
        <translation>Der Ordner „%1“ lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read, and no copy of it can be kept: so it is not saved over</source>
        <translation>„%1“ ist nicht lesbar, und es lässt sich keine Kopie davon aufbewahren: Deshalb wird sie nicht überschrieben</translation>
    </message>
    <message>
        <source>Of “%1” no copy can be kept: so it is not saved over</source>
        <translation>Von „%1“ lässt sich keine Kopie aufbewahren: Deshalb wird sie nicht überschrieben</translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message>
        <source>The list of what is to be synchronised can&apos;t be written to &quot;%1&quot;: %2.</source>
        <translation>Die Liste dessen, was abzugleichen ist, lässt sich nicht nach „%1“ schreiben: %2.</translation>
    </message>
    <message>
        <source>deleted at the destination</source>
        <translation>am Ziel gelöscht</translation>
    </message>
    <message>
        <source>replaced there, removed here</source>
        <translation>dort ersetzt, hier entfernt</translation>
    </message>
    <message>
        <source>moved there</source>
        <translation>dorthin verschoben</translation>
    </message>
    <message>
        <source>there already, removed here</source>
        <translation>schon dort, hier entfernt</translation>
    </message>
    <message>
        <source>folder made</source>
        <translation>Ordner angelegt</translation>
    </message>
    <message>
        <source>date or permissions set</source>
        <translation>Datum oder Rechte gesetzt</translation>
    </message>
    <message>
        <source>Nothing would be copied or deleted.</source>
        <translation>Es würde nichts kopiert oder gelöscht.</translation>
    </message>
    <message>
        <source>%1. %2 would be copied.</source>
        <translation>%1. %2 würden kopiert.</translation>
    </message>
    <message>
        <source>Delete %1 there, remove %2 here?</source>
        <translation>Dort %1 löschen, hier %2 entfernen?</translation>
    </message>
    <message>
        <source>Delete %1 there?</source>
        <translation>Dort %1 löschen?</translation>
    </message>
    <message>
        <source>Remove %1 here?</source>
        <translation>Hier %1 entfernen?</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; shows another key than before; someone may be in its place. Ask who runs it before you connect again.</source>
        <translation>Der Server „%1“ zeigt einen anderen Schlüssel als früher; jemand könnte sich für ihn ausgeben. Fragen Sie seinen Betreiber, bevor Sie sich wieder verbinden.</translation>
    </message>
    <message>
        <source>ssh does not know the server &quot;%1&quot; yet. Connect to it once in a terminal (ssh %1), compare the key that it shows, and try again.</source>
        <translation>ssh kennt den Server „%1“ noch nicht. Verbinden Sie sich einmal in einem Terminal mit ihm (ssh %1), vergleichen Sie den Schlüssel, den er zeigt, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no server of the name &quot;%1&quot;, or this computer is offline. Check the name.</source>
        <translation>Es gibt keinen Server namens „%1“, oder dieser Rechner ist offline. Prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses the connection. Check that its ssh service runs; a port other than 22 belongs into ~/.ssh/config.</source>
        <translation>Der Server „%1“ weist die Verbindung ab. Prüfen Sie, ob sein ssh-Dienst läuft; ein anderer Port als 22 gehört in ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached. Check the network, and that the server is on.</source>
        <translation>Der Server „%1“ ist nicht erreichbar. Prüfen Sie das Netz, und ob der Server eingeschaltet ist.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in, since it was sent an empty user name. Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own.</source>
        <translation>Der Server „%1“ hat Sie nicht eingelassen, denn ihm wurde ein leerer Benutzername gesendet. Füllen Sie „Benutzer“ aus: Dann nimmt ssh den aus ~/.ssh/config, sonst Ihren eigenen.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in. Nobody can type a password here: log in by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).</source>
        <translation>Der Server „%1“ hat Sie nicht eingelassen. Hier kann niemand ein Passwort eintippen: Melden Sie sich mit einem Schlüssel an, den ssh ohne Rückfrage findet (siehe ssh-agent, ~/.ssh/config).</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no rsync. Install it there.</source>
        <translation>Der Server „%1“ hat kein rsync. Installieren Sie es dort.</translation>
    </message>
    <message>
        <source>rsync does not understand its arguments. Check &quot;rsyncparams&quot; and &quot;rsyncexcludes&quot; in the settings file: both must be there, and each be one option.</source>
        <translation>rsync versteht seine Argumente nicht. Prüfen Sie &quot;rsyncparams&quot; und &quot;rsyncexcludes&quot; in der Einstellungsdatei: Beide müssen da sein, und jedes muss eine einzige Option sein.</translation>
    </message>
    <message>
        <source>The server took the port for the beginning of the folder&apos;s path. Leave the port empty, and put it into ~/.ssh/config.</source>
        <translation>Der Server hielt den Port für den Anfang des Ordnerpfads. Lassen Sie den Port leer, und tragen Sie ihn in ~/.ssh/config ein.</translation>
    </message>
    <message>
        <source>The folder in which &quot;%2&quot; is to be made does not exist. Connect its disk, or choose another destination.</source>
        <translation>Den Ordner, in dem „%2“ angelegt werden soll, gibt es nicht. Schließen Sie den Datenträger an, oder wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>The destination is full. Make room there and run it again: what is there is not copied twice.</source>
        <translation>Das Ziel ist voll. Schaffen Sie dort Platz, und gleichen Sie noch einmal ab: Was dort ist, wird nicht zweimal kopiert.</translation>
    </message>
    <message>
        <source>A file is larger than the destination can take. Choose another disk, or leave the file out.</source>
        <translation>Eine Datei ist größer, als das Ziel sie aufnehmen kann. Wählen Sie einen anderen Datenträger, oder lassen Sie die Datei aus.</translation>
    </message>
    <message>
        <source>The destination &quot;%2&quot; can only be read. Choose another one.</source>
        <translation>Das Ziel „%2“ ist nur lesbar. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>You may not read some of the files; they are not copied.</source>
        <translation>Einige der Dateien dürfen Sie nicht lesen; sie werden nicht kopiert.</translation>
    </message>
    <message>
        <source>You may not write to the destination &quot;%2&quot;. Choose another one, or have its permissions changed.</source>
        <translation>In das Ziel „%2“ dürfen Sie nicht schreiben. Wählen Sie ein anderes, oder lassen Sie die Zugriffsrechte ändern.</translation>
    </message>
    <message>
        <source>An entry of the list is not where it was; it is not copied. Remove it from the list, or bring it back.</source>
        <translation>Ein Eintrag der Liste ist nicht mehr, wo er war; er wird nicht kopiert. Entfernen Sie ihn aus der Liste, oder bringen Sie ihn zurück.</translation>
    </message>
    <message>
        <source>Files disappeared while they were to be copied. All others are copied; run it again where that matters.</source>
        <translation>Dateien verschwanden, während sie kopiert werden sollten. Alle anderen sind kopiert; gleichen Sie noch einmal ab, wo es darauf ankommt.</translation>
    </message>
    <message>
        <source>A folder that is gone here could not be deleted at the destination: it holds files that rsync leaves alone.</source>
        <translation>Ein Ordner, der hier weg ist, konnte am Ziel nicht gelöscht werden: Er enthält Dateien, die rsync nicht anrührt.</translation>
    </message>
    <message>
        <source>The destination can&apos;t keep all owners, dates or permissions of the files.</source>
        <translation>Das Ziel kann nicht alle Eigentümer, Daten oder Zugriffsrechte der Dateien festhalten.</translation>
    </message>
    <message>
        <source>The connection to &quot;%1&quot; ended early. Run it again: what is there is not copied twice.</source>
        <translation>Die Verbindung zu „%1“ brach ab. Gleichen Sie noch einmal ab: Was dort ist, wird nicht zweimal kopiert.</translation>
    </message>
    <message>
        <source>ssh has noted the server&apos;s key, and what it said counts as a failure. Run it once more.</source>
        <translation>ssh hat sich den Schlüssel des Servers gemerkt, und seine Meldung darüber zählt als Fehlschlag. Gleichen Sie noch einmal ab.</translation>
    </message>
    <message>
        <source> Nothing was deleted at the destination.</source>
        <translation> Am Ziel wurde nichts gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty, and everything in its copy would be deleted. Is its disk connected?</source>
        <translation>„%1“ ist leer, und in der Kopie würde alles gelöscht. Ist der Datenträger angeschlossen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie under the common folder &quot;%2&quot; as the list is written, and will not be found. Synchronise it from a profile of its own.</source>
        <translation>„%1“ liegt so, wie es in der Liste steht, nicht unter dem gemeinsamen Ordner „%2“ und wird nicht gefunden. Gleichen Sie es mit einem eigenen Profil ab.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one. Choose another destination.</source>
        <translation>Das Ziel liegt in „%1“, so dass jeder Lauf die Kopien des vorigen kopiert. Wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>Copies what is new or was changed here. Files that are newer at the destination stay as they are.</source>
        <translation>Kopiert, was hier neu ist oder geändert wurde. Dateien, die am Ziel neuer sind, bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Copies every file whose content differs, also over a newer one at the destination. All files are read on both sides, which takes long.</source>
        <translation>Kopiert jede Datei, deren Inhalt sich unterscheidet, auch über eine neuere am Ziel. Alle Dateien werden auf beiden Seiten gelesen, was lange dauert.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. And deletes at the destination, inside the listed folders, what is not here: a second run deletes there what the first one moved there, and then it is nowhere.</source>
        <translation>VERSCHIEBT die Dateien: Sie werden hier entfernt, sobald sie am Ziel sind. Und löscht am Ziel, innerhalb der aufgelisteten Ordner, was hier nicht ist: Ein zweiter Lauf löscht dort, was der erste dorthin verschoben hat, und dann ist es nirgends mehr.</translation>
    </message>
    <message>
        <source>Deletes at the destination, inside the listed folders, everything that is not here any more.</source>
        <translation>Löscht am Ziel, innerhalb der aufgelisteten Ordner, alles, was hier nicht mehr ist.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. Folders stay, empty.</source>
        <translation>VERSCHIEBT die Dateien: Sie werden hier entfernt, sobald sie am Ziel sind. Ordner bleiben leer zurück.</translation>
    </message>
    <message>
        <source>Deletes nothing, neither here nor there.</source>
        <translation>Löscht nichts, weder hier noch dort.</translation>
    </message>
    <message>
        <source>Without a user the server is sent an empty name, which it refuses: fill one in. Which name is used is for ~/.ssh/config to say; otherwise it is your own.</source>
        <translation>Ohne Benutzer wird dem Server ein leerer Name gesendet, den er ablehnt: Tragen Sie einen ein. Welcher Name verwendet wird, bestimmt ~/.ssh/config; sonst ist es Ihr eigener.</translation>
    </message>
    <message>
        <source>The port becomes the beginning of the folder&apos;s path on the server. Leave it empty, and put it into ~/.ssh/config.</source>
        <translation>Der Port wird zum Anfang des Ordnerpfads auf dem Server. Lassen Sie ihn leer, und tragen Sie ihn in ~/.ssh/config ein.</translation>
    </message>
    <message>
        <source>The folder must exist on the server: a single file would be stored under its name instead.</source>
        <translation>Den Ordner muss es auf dem Server geben: Eine einzelne Datei würde sonst unter seinem Namen abgelegt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will not be found: its path holds that of the common folder &quot;%2&quot; in the wrong place. Synchronise it from a profile of its own.</source>
        <translation>„%1“ wird nicht gefunden: Sein Pfad enthält den des gemeinsamen Ordners „%2“ an der falschen Stelle. Gleichen Sie es mit einem eigenen Profil ab.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one.</source>
        <translation>Das Ziel liegt in „%1“, so dass jeder Lauf die Kopien des vorigen kopiert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no absolute path. Remove it from the list and add it again.</source>
        <translation>„%1“ ist kein absoluter Pfad. Entfernen Sie ihn aus der Liste, und fügen Sie ihn erneut hinzu.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; holds a line break, which rsync&apos;s list can&apos;t. Put the folder above it on the list instead.</source>
        <translation>Der Pfad „%1“ enthält einen Zeilenumbruch, was die Liste von rsync nicht erlaubt. Nehmen Sie stattdessen den Ordner darüber in die Liste.</translation>
    </message>
    <message>
        <source>No server is given. Type its name, or switch the remote destination off.</source>
        <translation>Es ist kein Server angegeben. Tippen Sie seinen Namen ein, oder schalten Sie „Auf einem Server“ aus.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no server&apos;s name.</source>
        <translation>„%1“ ist kein Name eines Servers.</translation>
    </message>
    <message>
        <source>The list is empty. Add the files and folders that are to be synchronised.</source>
        <translation>Die Liste ist leer. Fügen Sie die Dateien und Ordner hinzu, die abgeglichen werden sollen.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the files go to.</source>
        <translation>Es ist kein Ziel gewählt. Wählen Sie den Ordner, in den die Dateien kommen.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is no absolute path. Choose the folder again.</source>
        <translation>Das Ziel „%1“ ist kein absoluter Pfad. Wählen Sie den Ordner erneut.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is a file. Choose a folder.</source>
        <translation>Das Ziel „%1“ ist eine Datei. Wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is the folder that the files lie in already. Choose another one.</source>
        <translation>Das Ziel „%1“ ist der Ordner, in dem die Dateien schon liegen. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>The destination folder &quot;%1&quot; can&apos;t be made. Choose one that you may write to.</source>
        <translation>Der Zielordner „%1“ lässt sich nicht anlegen. Wählen Sie einen, in den Sie schreiben dürfen.</translation>
    </message>
    <message>
        <source>Cancelled before it began.
</source>
        <translation>Vor dem Beginn abgebrochen.
</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>rsync&apos;s message is not readable text.</source>
        <translation>Die Meldung von rsync ist kein lesbarer Text.</translation>
    </message>
    <message>
        <source>It ended with status %1 and did not say why; not everything is copied. Run it again.</source>
        <translation>Es endete mit Status %1 und sagte nicht, warum; nicht alles ist kopiert. Gleichen Sie noch einmal ab.</translation>
    </message>
    <message>
        <source>Preview cancelled.</source>
        <translation>Vorschau abgebrochen.</translation>
    </message>
    <message>
        <source>Cancelled. What was copied stays; the next run goes on from there.</source>
        <translation>Abgebrochen. Was kopiert wurde, bleibt; der nächste Lauf macht dort weiter.</translation>
    </message>
    <message>
        <source>Failed. %1</source>
        <translation>Fehlgeschlagen. %1</translation>
    </message>
    <message>
        <source>Synchronised %1 in %2.</source>
        <translation>Abgeglichen: %1 in %2.</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>ersetzt</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n Eintrag</numerusform>
            <numerusform>%n Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>rsync, the program that copies, reported a problem; its own words follow.</source>
        <translation>rsync, das Programm, das kopiert, hat ein Problem gemeldet; seine eigenen Worte folgen.</translation>
    </message>
    <message>
        <source>Beside &quot;%1&quot; there is a name that differs in upper and lower case only. The destination may take both for one, so that only one of them arrives. Rename one of them.</source>
        <translation>Neben „%1“ gibt es einen Namen, der sich nur in Groß- und Kleinschreibung unterscheidet. Das Ziel hält beide vielleicht für denselben, sodass nur eines von beiden ankommt. Benennen Sie eines davon um.</translation>
    </message>
</context>
<context>
    <name>synchronisation</name>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Ordner und Dateien zum Abgleichen hinzufügen</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Quellordner wählen</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Ziel des Abgleichs wählen</translation>
    </message>
    <message>
        <source>The profile deletes files, at the destination or here. The window&apos;s preview shows which.</source>
        <translation>Das Profil löscht Dateien, am Ziel oder hier. Die Vorschau im Fenster zeigt, welche.</translation>
    </message>
    <message>
        <source>Comparing both sides…</source>
        <translation>Beide Seiten werden verglichen…</translation>
    </message>
    <message>
        <source>There is more to delete by now. </source>
        <translation>Inzwischen ist mehr zu löschen. </translation>
    </message>
    <message>
        <source>Looking at both sides…</source>
        <translation>Beide Seiten werden angesehen…</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Es wird abgeglichen…</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Choose a tool</source>
        <translation>Werkzeug wählen</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: a name or a password for it holds a zero byte.
</source>
        <translation>„%1“ lässt sich nicht starten: Ein Name oder ein Passwort dafür enthält ein Nullbyte.
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2 (%3).
</source>
        <translation>„%1“ wurde durch Signal %2 beendet (%3).
</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: %2. Choose the tool&apos;s path on the Tools tab.</source>
        <translation>„%1“ lässt sich nicht starten: %2. Wählen Sie den Pfad des Werkzeugs auf der Seite „Werkzeuge“.</translation>
    </message>
    <message>
        <source>This OpenSSL can&apos;t be used by itself: it makes something else of a password than archives of this program need, and complains of it. Choose Quillorent&apos;s own &quot;openssl&quot;, which uses it.</source>
        <translation>Dieses OpenSSL ist allein nicht verwendbar: Es macht aus einem Passwort etwas anderes, als die Archive dieses Programms brauchen, und beschwert sich darüber. Wählen Sie das „openssl“ von Quillorent, das dieses hier benutzt.</translation>
    </message>
    <message>
        <source>the tool&apos;s message is not readable text</source>
        <translation>die Meldung des Werkzeugs ist kein lesbarer Text</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListModel</name>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>comes with the first volume of its set</source>
        <translation>kommt mit dem ersten Teil seines Archivs</translation>
    </message>
    <message>
        <source>not extracted: its path has &quot;part&quot; and a number, as later volumes have it</source>
        <translation>nicht entpackt: Im Pfad stehen „part“ und eine Zahl wie bei späteren Teilen</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archiv</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListView</name>
    <message>
        <source>Drop archives, or a folder of them, here, or press Add</source>
        <translation>Archive, oder einen Ordner davon, hier ablegen oder „Hinzufügen“ drücken</translation>
    </message>
</context>
<context>
    <name>ui::BackupList</name>
    <message>
        <source>its first part is missing</source>
        <translation>erster Teil fehlt</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
    <message>
        <source>Incomplete or mixed: %1.</source>
        <translation>Unvollständig oder gemischt: %1.</translation>
    </message>
    <message>
        <source>What was backed up</source>
        <translation>Was gesichert wurde</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Wann</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>ui::BackupOffer</name>
    <message>
        <source>Bac&amp;kups in &quot;%1&quot;: tick what you want back</source>
        <translation>Si&amp;cherungen in „%1“: Gewünschtes anhaken</translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message>
        <source>1 folder</source>
        <translation>1 Ordner</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>3 of 4 folders</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>48 GB in 11 min</comment>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Backed up %1</source>
        <translation>Gesichert %1</translation>
    </message>
    <message>
        <source>Cancelled %1</source>
        <translation>Abgebrochen %1</translation>
    </message>
    <message>
        <source>backed up by then: %1</source>
        <translation>bis dahin gesichert: %1</translation>
    </message>
    <message>
        <source>The backup that began %1 was interrupted</source>
        <translation>Die Sicherung, die %1 begann, wurde unterbrochen</translation>
    </message>
    <message>
        <source>Backed up %1, but not everything</source>
        <translation>Gesichert %1, aber nicht alles</translation>
    </message>
    <message>
        <source>The backup failed %1</source>
        <translation>Sicherung %1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>backed up: %1</source>
        <translation>gesichert: %1</translation>
    </message>
    <message>
        <source>What failed: “%1” – %2</source>
        <translation>Was fehlschlug: „%1“ – %2</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Was zu tun ist: %1</translation>
    </message>
    <message>
        <source>What to do: back up again. The next backup first puts in order what this one left.</source>
        <translation>Was zu tun ist: Sichern Sie erneut. Die nächste Sicherung bringt zuerst in Ordnung, was diese zurückließ.</translation>
    </message>
    <message>
        <source>Left out: “%1” – %2. Connect its disk, or take it off the list.</source>
        <translation>Ausgelassen: „%1“ – %2. Schließen Sie den Datenträger an, oder nehmen Sie es aus der Liste.</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;, which is not encrypted</source>
        <translation>Was übrig ist: „%1“, nicht verschlüsselt</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;</source>
        <translation>Was übrig ist: „%1“</translation>
    </message>
    <message>
        <source>“%1” was in the way and is called “%2” now.</source>
        <translation>„%1“ war im Weg und heißt jetzt „%2“.</translation>
    </message>
    <message>
        <source>What was left: nothing. Archives from earlier backups are as they were.</source>
        <translation>Was übrig ist: nichts. Archive früherer Sicherungen sind, wie sie waren.</translation>
    </message>
    <message>
        <source>What failed, what to do and what was left</source>
        <translation>Was fehlschlug, was zu tun ist und was übrig ist</translation>
    </message>
</context>
<context>
    <name>ui::CompressionHint</name>
    <message>
        <source>archives about %1 % smaller</source>
        <translation>Archive etwa %1&#xa0;% kleiner</translation>
    </message>
    <message>
        <source>gains next to nothing here</source>
        <translation>bringt hier so gut wie nichts</translation>
    </message>
</context>
<context>
    <name>ui::ContentsModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n Sekunde</numerusform>
            <numerusform>%n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n Minute</numerusform>
            <numerusform>%n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>What &quot;%1&quot; holds</source>
        <translation>Inhalt von „%1“</translation>
    </message>
    <message>
        <source>Nothing is chosen yet: tick files or folders.</source>
        <translation>Noch ist nichts gewählt: Haken Sie Dateien oder Ordner an.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Gewählt: %1, %2. Es dauert etwa %3, wie das Nachsehen im Archiv: Dazu muss alles entschlüsselt werden. Von Ihren Dateien wird nichts ersetzt: Ist eine schon da und anders, bekommt sie einen Namen, der mit „kept-“ beginnt.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::FirstSteps</name>
    <message>
        <source>Your first backup, in three steps</source>
        <translation>Ihre erste Sicherung, in drei Schritten</translation>
    </message>
    <message>
        <source>What is to be kept safe?</source>
        <translation>Was soll gesichert werden?</translation>
    </message>
    <message>
        <source>Choose the folders that you can&apos;t do without, or drop them here.</source>
        <translation>Wählen Sie die Ordner, auf die Sie nicht verzichten können, oder legen Sie sie hier ab.</translation>
    </message>
    <message>
        <source>Choose folders…</source>
        <translation>Ordner wählen…</translation>
    </message>
    <message>
        <source>Where to?</source>
        <translation>Wohin?</translation>
    </message>
    <message>
        <source>Choose a folder on another disk: one that breaks or is stolen takes all with it.</source>
        <translation>Wählen Sie einen Ordner auf einem anderen Datenträger: Einer, der ausfällt oder gestohlen wird, nimmt alles mit.</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>Ort wählen…</translation>
    </message>
    <message>
        <source>What locks it?</source>
        <translation>Womit verschließen?</translation>
    </message>
    <message>
        <source>Think of a password. Without it nobody can open the backup, you neither: write it down in a safe place.</source>
        <translation>Denken Sie sich ein Passwort aus. Ohne es kann niemand die Sicherung öffnen, auch Sie nicht: Schreiben Sie es auf und bewahren Sie es sicher auf.</translation>
    </message>
    <message>
        <source>Set a password…</source>
        <translation>Passwort setzen…</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Skip: %1</source>
        <translation>Überspringen: %1</translation>
    </message>
</context>
<context>
    <name>ui::FolderListModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Last backed up</source>
        <translation>Zuletzt gesichert</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>neither file nor folder</source>
        <translation>weder Datei noch Ordner</translation>
    </message>
    <message>
        <source>only a link</source>
        <translation>nur eine Verknüpfung</translation>
    </message>
    <message>
        <source>holds the destination</source>
        <translation>enthält das Ziel</translation>
    </message>
    <message>
        <source>Neither a file nor a folder, and left out by a backup. Remove it.</source>
        <translation>Weder Datei noch Ordner, und beim Sichern ausgelassen. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>A link to another place: only the link itself would be backed up. Add the folder that it leads to.</source>
        <translation>Eine Verknüpfung an einen anderen Ort: Nur sie selbst würde gesichert. Fügen Sie den Ordner hinzu, auf den sie zeigt.</translation>
    </message>
    <message>
        <source>The archives go into this folder, so each would hold the ones before it. Choose another destination.</source>
        <translation>Die Archive kommen in diesen Ordner, so dass jedes die früheren enthielte. Wählen Sie ein anderes Ziel.</translation>
    </message>
    <message>
        <source>…</source>
        <comment>a size that is being measured</comment>
        <translation>…</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Not found, and left out. Connect its disk, or remove it.</source>
        <translation>Nicht gefunden, und ausgelassen. Schließen Sie den Datenträger an, oder entfernen Sie es.</translation>
    </message>
</context>
<context>
    <name>ui::FolderListView</name>
    <message>
        <source>Drop folders here, or press Add</source>
        <translation>Ordner hier ablegen oder „Hinzufügen“ drücken</translation>
    </message>
</context>
<context>
    <name>ui::FoldersPage</name>
    <message>
        <source>not a size</source>
        <translation>keine Größe</translation>
    </message>
    <message>
        <source>700 MB – a CD</source>
        <translation>700 MB – eine CD</translation>
    </message>
    <message>
        <source>4.7 GB – a DVD</source>
        <translation>4,7 GB – eine DVD</translation>
    </message>
    <message>
        <source>25 GB – a Blu-ray disc</source>
        <translation>25 GB – eine Blu-ray</translation>
    </message>
    <message>
        <source>None – one file an archive</source>
        <translation>Keine – eine Datei je Archiv</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>Only %1 free, and a backup needs about %2 while it works</source>
        <translation>Nur %1 frei, und eine Sicherung braucht zeitweise etwa %2</translation>
    </message>
    <message>
        <source>%1 free; a backup needs about %2 while it works</source>
        <translation>%1 frei; eine Sicherung braucht zeitweise etwa %2</translation>
    </message>
    <message>
        <source>%1 – it opens the archives that are there</source>
        <translation>%1 – es öffnet die Archive, die dort liegen</translation>
    </message>
    <message>
        <source>%1 – it does not open the archives that are there</source>
        <translation>%1 – es öffnet die Archive, die dort liegen, nicht</translation>
    </message>
    <message>
        <source>in files of %1</source>
        <translation>in Dateien von %1</translation>
    </message>
    <message>
        <source>one file a folder</source>
        <translation>eine Datei je Ordner</translation>
    </message>
    <message>
        <source>made smaller</source>
        <translation>verkleinert</translation>
    </message>
    <message>
        <source>dated like the newest file</source>
        <translation>datiert wie die neueste Datei</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between properties of the archives</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>ui::HindranceList</name>
    <message>
        <source>Go to the list</source>
        <translation>Zur Liste</translation>
    </message>
    <message>
        <source>Choose the place</source>
        <translation>Ort wählen</translation>
    </message>
    <message>
        <source>Go to the password</source>
        <translation>Zum Passwort</translation>
    </message>
    <message>
        <source>Go to the certificate</source>
        <translation>Zum Zertifikat</translation>
    </message>
    <message>
        <source>Go to the size</source>
        <translation>Zur Größe</translation>
    </message>
    <message>
        <source>Go to the tools</source>
        <translation>Zu den Werkzeugen</translation>
    </message>
    <message>
        <source>Still missing for a backup:</source>
        <translation>Für eine Sicherung fehlt noch:</translation>
    </message>
</context>
<context>
    <name>ui::LevelBar</name>
    <message>
        <source>%1 of %2 tools are in order</source>
        <translation>%1 von %2 Werkzeugen in Ordnung</translation>
    </message>
    <message>
        <source>No tools checked</source>
        <translation>Keine Werkzeuge geprüft</translation>
    </message>
</context>
<context>
    <name>ui::PathListView</name>
    <message>
        <source>Let go to add to the list</source>
        <translation>Zum Aufnehmen in die Liste loslassen</translation>
    </message>
</context>
<context>
    <name>ui::PreviewTableView</name>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
</context>
<context>
    <name>ui::ProgressFigures</name>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Zeit: %1</translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message>
        <source>Undo removing from the list</source>
        <translation>Entfernen aus der Liste rückgängig machen</translation>
    </message>
    <message>
        <source>“%1” is off the list.</source>
        <translation>„%1“ ist aus der Liste genommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n Eintrag ist aus der Liste genommen.</numerusform>
            <numerusform>%n Einträge sind aus der Liste genommen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RunNotices</name>
    <message>
        <source>Files restored</source>
        <translation>Dateien zurückgeholt</translation>
    </message>
    <message>
        <source>Restoring failed</source>
        <translation>Zurückholen fehlgeschlagen</translation>
    </message>
    <message>
        <source>Folders synchronised</source>
        <translation>Ordner abgeglichen</translation>
    </message>
    <message>
        <source>The synchronisation failed</source>
        <translation>Abgleich fehlgeschlagen</translation>
    </message>
    <message>
        <source>Backup finished</source>
        <translation>Sicherung fertig</translation>
    </message>
    <message>
        <source>The backup failed</source>
        <translation>Sicherung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Archive looked into</source>
        <translation>Im Archiv nachgesehen</translation>
    </message>
    <message>
        <source>The archive can&apos;t be looked into</source>
        <translation>Im Archiv ließ sich nicht nachsehen</translation>
    </message>
</context>
<context>
    <name>ui::SizeEdit</name>
    <message>
        <source>%1 %2B</source>
        <translation>%1 %2B</translation>
    </message>
</context>
<context>
    <name>ui::StepperButtons</name>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableModel</name>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>makes and opens archives</source>
        <translation>macht und öffnet Archive</translation>
    </message>
    <message>
        <source>encrypts and decrypts</source>
        <translation>verschlüsselt und entschlüsselt</translation>
    </message>
    <message>
        <source>copies what has changed</source>
        <translation>kopiert, was sich geändert hat</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>wird geprüft…</translation>
    </message>
    <message>
        <source>right tool</source>
        <translation>richtiges Werkzeug</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>nicht verwendbar</translation>
    </message>
    <message>
        <source>The file is missing, can&apos;t be run, or is another program.</source>
        <translation>Die Datei fehlt, lässt sich nicht ausführen oder ist ein anderes Programm.</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableView</name>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose the file of %1</source>
        <translation>Datei von %1 wählen</translation>
    </message>
</context>
<context>
    <name>ui::UnsavedChanges</name>
    <message>
        <source>All changes saved</source>
        <translation>Alle Änderungen gespeichert</translation>
    </message>
    <message>
        <source>Changes are saved when you quit</source>
        <translation>Änderungen werden beim Beenden gespeichert</translation>
    </message>
    <message>
        <source>Profiles and settings not saved yet</source>
        <translation>Profile und Einstellungen noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Profiles not saved yet</source>
        <translation>Profile noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Settings not saved yet</source>
        <translation>Einstellungen noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>There are changes that are not saved.</source>
        <translation>Es gibt ungespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Without saving they are lost when the program ends.</source>
        <translation>Ohne Speichern gehen sie verloren, wenn das Programm endet.</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Version %1 is there. You have version %2.</source>
        <translation>Version %1 ist da. Sie haben Version %2.</translation>
    </message>
    <message>
        <source>it is no RSS feed</source>
        <translation>es ist kein RSS-Feed</translation>
    </message>
</context>
</TS>
