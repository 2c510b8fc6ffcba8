<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>About</name>
    <message>
        <source>About Quillorent</source>
        <translation>À propos de Quillorent</translation>
    </message>
    <message>
        <source>Quillorent %1</source>
        <translation>Quillorent %1</translation>
    </message>
    <message>
        <source>Makes encrypted archives of your folders, and brings them back.</source>
        <translation>Crée des archives chiffrées de vos dossiers, et les restaure.</translation>
    </message>
    <message>
        <source>© 2026 The Quillorent developers. Free software under the MIT licence: you may use, change and share it; it comes without any warranty.</source>
        <translation>© 2026 Les développeurs de Quillorent. Logiciel libre sous licence MIT&#xa0;: vous pouvez l’utiliser, le modifier et le partager&#xa0;; il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>It stands on these libraries and their licences:</source>
        <translation>Il s’appuie sur ces bibliothèques et leurs licences&#xa0;:</translation>
    </message>
</context>
<context>
    <name>Advice</name>
    <message>
        <source>Make room on the disk of the destination, or choose another one. Then back up again.</source>
        <translation>Libérez de la place sur le disque de destination, ou choisissez-en un autre. Relancez ensuite la sauvegarde.</translation>
    </message>
    <message>
        <source>The destination takes no files of that size. Have the archives split into files of less than 4 GB, and back up again.</source>
        <translation>La destination n’accepte pas de fichiers de cette taille. Faites découper les archives en fichiers de moins de 4&#xa0;Go, puis relancez la sauvegarde.</translation>
    </message>
    <message>
        <source>Nothing can be written to the destination any more. Connect its disk anew, or choose another one, and back up again.</source>
        <translation>Plus rien ne peut être écrit dans la destination. Reconnectez son disque, ou choisissez-en une autre, puis relancez la sauvegarde.</translation>
    </message>
    <message>
        <source>A disk does not work as it should. Check its cable, try another disk as the destination, and save what is on this one.</source>
        <translation>Un disque ne fonctionne pas normalement. Vérifiez son câble, essayez un autre disque comme destination, et mettez à l’abri ce qui se trouve sur celui-ci.</translation>
    </message>
    <message>
        <source>Something may not be read or written by you. Change its permissions, or take it off the list, and back up again.</source>
        <translation>Vous n’avez pas le droit de lire ou d’écrire un élément. Modifiez ses droits d’accès, ou retirez-le de la liste, puis relancez la sauvegarde.</translation>
    </message>
    <message>
        <source>A program that the backup needs can&apos;t be started. The Tools tab shows which one and lets you choose it.</source>
        <translation>Un programme nécessaire à la sauvegarde ne démarre pas. L’onglet «&#xa0;Outils&#xa0;» indique lequel et permet de le choisir.</translation>
    </message>
    <message>
        <source>Back up again. If it fails again, the messages of the tools tell more (Show messages, on the Tools tab).</source>
        <translation>Relancez la sauvegarde. Si elle échoue encore, les messages des outils en disent plus («&#xa0;Voir les messages&#xa0;», dans l’onglet «&#xa0;Outils&#xa0;»).</translation>
    </message>
</context>
<context>
    <name>ChoicePanel</name>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>What is to be decided</source>
        <translation>Ce qu’il faut décider</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Backs up folders into encrypted archives, and brings them back. Opens a window;
quillorent-run does the same without one.</source>
        <translation>Sauvegarde des dossiers dans des archives chiffrées, et les restaure. Ouvre une fenêtre&#xa0;;
quillorent-run fait la même chose sans fenêtre.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Afficher ce texte.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Archives to bring back.</source>
        <translation>Archives à restaurer.</translation>
    </message>
    <message>
        <source>[archive...]</source>
        <translation>[archive...]</translation>
    </message>
    <message>
        <source>Open this page: %1.</source>
        <translation>Ouvrir cette page&#xa0;: %1.</translation>
    </message>
    <message>
        <source>page</source>
        <translation>page</translation>
    </message>
    <message>
        <source>There is no option &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’option «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no page &quot;%1&quot;.</source>
        <translation>Il n’y a pas de page «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ConcernsPanel01</name>
    <message>
        <source>Before it begins</source>
        <translation>Avant de commencer</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Please read this before you go on:</source>
        <translation>Veuillez lire ceci avant de continuer&#xa0;:</translation>
    </message>
    <message>
        <source>What to think of before it begins</source>
        <translation>Ce à quoi penser avant de commencer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Go on anyway</source>
        <translation>&amp;Continuer quand même</translation>
    </message>
</context>
<context>
    <name>ConsolePanel01</name>
    <message>
        <source>Messages of the last run</source>
        <translation>Messages de la dernière opération</translation>
    </message>
    <message>
        <source>What the last run reported</source>
        <translation>Ce qu’a signalé la dernière opération</translation>
    </message>
    <message>
        <source>The last run had nothing to report.</source>
        <translation>La dernière opération n’a rien signalé.</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the whole text</source>
        <translation>Copier tout le texte</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>ContentsPanel01</name>
    <message>
        <source>Single files and folders</source>
        <translation>Certains fichiers et dossiers</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Part of a name; Return goes to the next one</source>
        <translation>Partie d’un nom&#xa0;; Entrée passe au suivant</translation>
    </message>
    <message>
        <source>What the archive holds</source>
        <translation>Contenu de l’archive</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Restore what is chosen</source>
        <translation>Restaurer &amp;la sélection</translation>
    </message>
</context>
<context>
    <name>DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Afficher la fenêtre</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
</context>
<context>
    <name>ExtractPanel01</name>
    <message>
        <source>An archive failed its test</source>
        <translation>Une archive n’a pas réussi le test</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Nothing was extracted, because this archive is not whole:</source>
        <translation>Rien n’a été extrait, car cette archive n’est pas intacte&#xa0;:</translation>
    </message>
    <message>
        <source>The archive that failed its test</source>
        <translation>L’archive qui n’a pas réussi le test</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Guide</source>
        <translation>Guide</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
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
        <translation>Le profil à charger&#xa0;; une fois chargé, il devient le profil actif</translation>
    </message>
    <message>
        <source>&amp;Load</source>
        <translation>Char&amp;ger</translation>
    </message>
    <message>
        <source>Use the chosen profile</source>
        <translation>Utiliser le profil choisi</translation>
    </message>
    <message>
        <source>Make a new profile</source>
        <translation>Créer un profil</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>Make another profile from the chosen one</source>
        <translation>Créer un autre profil à partir du profil choisi</translation>
    </message>
    <message>
        <source>Duplicate the profile</source>
        <translation>Dupliquer le profil</translation>
    </message>
    <message>
        <source>Give the chosen profile another name</source>
        <translation>Donner un autre nom au profil choisi</translation>
    </message>
    <message>
        <source>Rename the profile</source>
        <translation>Renommer le profil</translation>
    </message>
    <message>
        <source>Delete the chosen profile</source>
        <translation>Supprimer le profil choisi</translation>
    </message>
    <message>
        <source>Delete the profile</source>
        <translation>Supprimer le profil</translation>
    </message>
    <message>
        <source>Loading or saving profiles</source>
        <translation>Chargement ou enregistrement des profils</translation>
    </message>
    <message>
        <source>In use:</source>
        <translation>Actif&#xa0;:</translation>
    </message>
    <message>
        <source>Save all profiles</source>
        <translation>Enregistrer tous les profils</translation>
    </message>
    <message>
        <source>Options…</source>
        <translation>Options…</translation>
    </message>
    <message>
        <source>How this profile encrypts, and what the program does by itself</source>
        <translation>Comment ce profil chiffre, et ce que le programme fait de lui-même</translation>
    </message>
    <message>
        <source>&amp;Back up</source>
        <translation>&amp;Sauvegarder</translation>
    </message>
    <message>
        <source>Folders and files to bac&amp;k up</source>
        <translation>Dossiers &amp;et fichiers à sauvegarder</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Put back what was removed from the list (Ctrl+Z)</source>
        <translation>Remettre ce qui a été retiré de la liste (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Folders and files to back up</source>
        <translation>Dossiers et fichiers à sauvegarder</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>A&amp;jouter…</translation>
    </message>
    <message>
        <source>Add folders and files to the list</source>
        <translation>Ajouter des dossiers et des fichiers à la liste</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the folders themselves stay (Delete)</source>
        <translation>Retirer de la liste les éléments sélectionnés&#xa0;; les dossiers eux-mêmes restent (Suppr)</translation>
    </message>
    <message>
        <source>Where to</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Choose where the archives go</source>
        <translation>Choisissez où vont les archives</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>Protected by</source>
        <translation>Protection</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>C&amp;hanger…</translation>
    </message>
    <message>
        <source>Go to the passwords</source>
        <translation>Aller aux mots de passe</translation>
    </message>
    <message>
        <source>Change the protection</source>
        <translation>Changer la protection</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>Détai&amp;ls</translation>
    </message>
    <message>
        <source>Show or hide how the archives are made</source>
        <translation>Afficher ou masquer la façon dont les archives sont créées</translation>
    </message>
    <message>
        <source>Details of the archives</source>
        <translation>Détails des archives</translation>
    </message>
    <message>
        <source>Spl&amp;it each archive into files of</source>
        <translation>Découper cha&amp;que archive en fichiers de</translation>
    </message>
    <message>
        <source>Make several files of this size, called volumes, instead of one large one: for discs, or for places that take no large files. All of them are needed to restore</source>
        <translation>Créer plusieurs fichiers de cette taille, appelés volumes, au lieu d’un seul grand&#xa0;: pour des disques optiques, ou pour des emplacements qui refusent les grands fichiers. Tous sont nécessaires à la restauration</translation>
    </message>
    <message>
        <source>Largest size of a file</source>
        <translation>Taille maximale d’un fichier</translation>
    </message>
    <message>
        <source>With its unit, such as 700 MB or 4.7 GB; a number alone means MB</source>
        <translation>Avec son unité, par exemple 700&#xa0;MB ou 4,7&#xa0;GB (mégaoctets, gigaoctets)&#xa0;; un nombre seul signifie MB</translation>
    </message>
    <message>
        <source>Largest size of a file, arrows</source>
        <translation>Taille maximale d’un fichier, flèches</translation>
    </message>
    <message>
        <source>Usual sizes</source>
        <translation>Tailles usuelles</translation>
    </message>
    <message>
        <source>Make them smaller before encrypting</source>
        <translation>Réduire leur taille avant le chiffrement</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Rend bien plus petites les archives de documents, de courriels et autres&#xa0;; la taille d’une archive révèle alors un peu de son contenu</translation>
    </message>
    <message>
        <source>Found by packing samples of what is on the list</source>
        <translation>Mesuré en compressant des échantillons de ce qui est dans la liste</translation>
    </message>
    <message>
        <source>Date archives like their newe&amp;st file</source>
        <translation>Donner au&amp;x archives la date de leur fichier le plus récent</translation>
    </message>
    <message>
        <source>Without this, an archive has the date of the backup</source>
        <translation>Sans cela, une archive porte la date de la sauvegarde</translation>
    </message>
    <message>
        <source>Date the encrypted file in them the same way</source>
        <translation>Dater de même le fichier chiffré qu’elles contiennent</translation>
    </message>
    <message>
        <source>How the last backup ended</source>
        <translation>Résultat de la dernière sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Open folder</source>
        <translation>O&amp;uvrir le dossier</translation>
    </message>
    <message>
        <source>Show the archives in the file manager</source>
        <translation>Afficher les archives dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Try a restore</source>
        <translation>Essayer de restaurer</translation>
    </message>
    <message>
        <source>Only what came back is a backup: bring something back while you still have it</source>
        <translation>Seul ce qui a pu être restauré est une sauvegarde&#xa0;: restaurez quelque chose tant que vous l’avez encore</translation>
    </message>
    <message>
        <source>Back &amp;up now</source>
        <translation>Sau&amp;vegarder maintenant</translation>
    </message>
    <message>
        <source>R&amp;estore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Backups found</source>
        <translation>Sauvegardes trouvées</translation>
    </message>
    <message>
        <source>To be bro&amp;ught back</source>
        <translation>À r&amp;estaurer</translation>
    </message>
    <message>
        <source>Archives to be brought back</source>
        <translation>Archives à restaurer</translation>
    </message>
    <message>
        <source>Add archives from anywhere; of one in several parts the first is enough</source>
        <translation>Ajouter des archives, où qu’elles soient&#xa0;; d’une archive en plusieurs parties, la première suffit</translation>
    </message>
    <message>
        <source>Sin&amp;gle files…</source>
        <translation>Cer&amp;tains fichiers…</translation>
    </message>
    <message>
        <source>See what the selected archive holds, and bring back only what you choose of it</source>
        <translation>Voir ce que contient l’archive sélectionnée, et n’en restaurer que ce que vous choisissez</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Take the selected archives off the list; the files themselves stay (Delete)</source>
        <translation>Retirer de la liste les archives sélectionnées&#xa0;; les fichiers eux-mêmes restent (Suppr)</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Vider</translation>
    </message>
    <message>
        <source>Take all archives off the list</source>
        <translation>Retirer toutes les archives de la liste</translation>
    </message>
    <message>
        <source>To look for single files, the whole archive has to be decrypted: that needs the password, and about as long as bringing back all of it.</source>
        <translation>Pour y chercher des fichiers, il faut déchiffrer l’archive entière&#xa0;: cela demande le mot de passe, et à peu près autant de temps que de tout restaurer.</translation>
    </message>
    <message>
        <source>&amp;Into folder</source>
        <translation>Dans &amp;le dossier</translation>
    </message>
    <message>
        <source>Choose where the contents go</source>
        <translation>Choisissez où va le contenu</translation>
    </message>
    <message>
        <source>Use ~/Restored</source>
        <translation>Utiliser ~/Restored</translation>
    </message>
    <message>
        <source>A folder of the name &quot;Restored&quot; in your home folder; it is made if it isn&apos;t there yet</source>
        <translation>Un dossier nommé «&#xa0;Restored&#xa0;» dans votre dossier personnel&#xa0;; il est créé s’il n’existe pas encore</translation>
    </message>
    <message>
        <source>Use the folder &quot;Restored&quot; in your home folder</source>
        <translation>Utiliser le dossier «&#xa0;Restored&#xa0;» de votre dossier personnel</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Choose the folder that everything goes to</source>
        <translation>Choisir le dossier où tout est déposé</translation>
    </message>
    <message>
        <source>H&amp;ow it is encrypted</source>
        <translation>&amp;Chiffrement</translation>
    </message>
    <message>
        <source>With the password, by AES</source>
        <translation>Par mot de passe, avec AES</translation>
    </message>
    <message>
        <source>With the password, by Blowfish</source>
        <translation>Par mot de passe, avec Blowfish</translation>
    </message>
    <message>
        <source>With the password, by Triple DES</source>
        <translation>Par mot de passe, avec Triple DES</translation>
    </message>
    <message>
        <source>For a certificate, by S/MIME</source>
        <translation>Par certificat, avec S/MIME</translation>
    </message>
    <message>
        <source>Automatic: as the archive&apos;s name tells</source>
        <translation>Automatique&#xa0;: selon le nom de l’archive</translation>
    </message>
    <message>
        <source>How bringing back ended last time</source>
        <translation>Résultat de la dernière restauration</translation>
    </message>
    <message>
        <source>Open fol&amp;der</source>
        <translation>O&amp;uvrir le dossier</translation>
    </message>
    <message>
        <source>Show what was brought back, in the file manager</source>
        <translation>Afficher ce qui a été restauré, dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Restore &amp;now</source>
        <translation>Restaurer mai&amp;ntenant</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>Protect arch&amp;ives with</source>
        <translation>Protéger les arc&amp;hives par</translation>
    </message>
    <message>
        <source>Typed password</source>
        <translation>Mot de passe saisi</translation>
    </message>
    <message>
        <source>Password from the keychain</source>
        <translation>Mot de passe du trousseau</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Certificat</translation>
    </message>
    <message>
        <source>Passwor&amp;d</source>
        <translation>Mo&amp;t de passe</translation>
    </message>
    <message>
        <source>Password, hidden</source>
        <translation>Mot de passe, masqué</translation>
    </message>
    <message>
        <source>Password, shown</source>
        <translation>Mot de passe, affiché</translation>
    </message>
    <message>
        <source>Once &amp;more</source>
        <translation>Co&amp;nfirmation</translation>
    </message>
    <message>
        <source>Where no archive is there yet that tells a mistyped password</source>
        <translation>Quand aucune archive existante ne peut révéler une faute de frappe</translation>
    </message>
    <message>
        <source>Password, once more</source>
        <translation>Mot de passe, confirmation</translation>
    </message>
    <message>
        <source>Hide the p&amp;assword</source>
        <translation>Mas&amp;quer le mot de passe</translation>
    </message>
    <message>
        <source>The two differ: one of them is mistyped.</source>
        <translation>Les deux diffèrent&#xa0;: l’un d’eux est mal saisi.</translation>
    </message>
    <message>
        <source>The keychain is where your desktop keeps passwords; your log-in opens it. Fetch takes the password out of it, Store puts it in. It is lost together with your account: write it down all the same.</source>
        <translation>Le trousseau est l’endroit où votre bureau conserve les mots de passe&#xa0;; il s’ouvre avec votre session. «&#xa0;Lire&#xa0;» en sort le mot de passe, «&#xa0;Stocker&#xa0;» l’y met. Il disparaît avec votre compte&#xa0;: notez tout de même le mot de passe.</translation>
    </message>
    <message>
        <source>Acco&amp;unt</source>
        <translation>&amp;Compte</translation>
    </message>
    <message>
        <source>The name that the keychain keeps the password under</source>
        <translation>Le nom sous lequel le trousseau conserve le mot de passe</translation>
    </message>
    <message>
        <source>Fet&amp;ch</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>Fetch this account&apos;s password from the keychain</source>
        <translation>Lire dans le trousseau le mot de passe de ce compte</translation>
    </message>
    <message>
        <source>Password of the keychain, hidden</source>
        <translation>Mot de passe du trousseau, masqué</translation>
    </message>
    <message>
        <source>Password of the keychain, shown</source>
        <translation>Mot de passe du trousseau, affiché</translation>
    </message>
    <message>
        <source>&amp;Store</source>
        <translation>Stoc&amp;ker</translation>
    </message>
    <message>
        <source>Store the password in the keychain; one that is there already is never replaced</source>
        <translation>Stocker le mot de passe dans le trousseau&#xa0;; celui qui s’y trouve déjà n’est jamais remplacé</translation>
    </message>
    <message>
        <source>Hide this p&amp;assword</source>
        <translation>Mas&amp;quer ce mot de passe</translation>
    </message>
    <message>
        <source>Asking the keychain</source>
        <translation>Interrogation du trousseau</translation>
    </message>
    <message>
        <source>U&amp;nlock…</source>
        <translation>Déverro&amp;uiller…</translation>
    </message>
    <message>
        <source>Let the keychain ask for its password</source>
        <translation>Laisser le trousseau demander son mot de passe</translation>
    </message>
    <message>
        <source>Careful: the text that counts is not the one you see here. The switch &quot;Hide the password&quot; of the typed password decides between the hidden and the shown text; set it like the one above, on the page &quot;Typed password&quot;.</source>
        <translation>Attention&#xa0;: le texte qui compte n’est pas celui que vous voyez ici. L’option «&#xa0;Masquer le mot de passe&#xa0;» du mot de passe saisi décide entre le texte masqué et le texte affiché&#xa0;; réglez-la comme celle ci-dessus, à la page «&#xa0;Mot de passe saisi&#xa0;».</translation>
    </message>
    <message>
        <source>Certific&amp;ate</source>
        <translation>C&amp;ertificat</translation>
    </message>
    <message>
        <source>The certificate of whoever is to open the archives</source>
        <translation>Le certificat de la personne qui doit pouvoir ouvrir les archives</translation>
    </message>
    <message>
        <source>Choose the certificate</source>
        <translation>Choisir le certificat</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Voir</translation>
    </message>
    <message>
        <source>Show the certificate as text, among the messages</source>
        <translation>Afficher le certificat en texte, parmi les messages</translation>
    </message>
    <message>
        <source>Show the certificate</source>
        <translation>Voir le certificat</translation>
    </message>
    <message>
        <source>Private &amp;key</source>
        <translation>C&amp;lé privée</translation>
    </message>
    <message>
        <source>Needed to restore only; the file that belongs to the certificate</source>
        <translation>Nécessaire pour restaurer seulement&#xa0;; le fichier qui va avec le certificat</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Choisir la clé privée</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>Show the private key as text, among the messages, where everybody can read it</source>
        <translation>Afficher la clé privée en texte, parmi les messages, où tout le monde peut la lire</translation>
    </message>
    <message>
        <source>Show the private key</source>
        <translation>Voir la clé privée</translation>
    </message>
    <message>
        <source>Two files instead of a password: the certificate locks, and only the private key that belongs to it opens. Backups need the certificate alone.</source>
        <translation>Deux fichiers au lieu d’un mot de passe&#xa0;: le certificat ferme, et seule la clé privée correspondante ouvre. Pour sauvegarder, le certificat suffit.</translation>
    </message>
    <message>
        <source>Without this password, or the private key that belongs to the certificate, nobody can open the archives, you included.</source>
        <translation>Sans ce mot de passe, ou sans la clé privée qui va avec le certificat, personne ne peut ouvrir les archives, pas même vous.</translation>
    </message>
    <message>
        <source>S&amp;ynchronise</source>
        <translation>S&amp;ynchroniser</translation>
    </message>
    <message>
        <source>Folders and files to synchronise</source>
        <translation>Dossiers et fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Ajouter des dossiers et des fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Take the selected entries off the list; the files themselves stay (Delete)</source>
        <translation>Retirer de la liste les éléments sélectionnés&#xa0;; les fichiers eux-mêmes restent (Suppr)</translation>
    </message>
    <message>
        <source>Remove entries from synchronisation</source>
        <translation>Retirer des éléments de la synchronisation</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Kept with the profile; what is copied is the list above</source>
        <translation>Conservé avec le profil&#xa0;; c’est la liste ci-dessus qui est copiée</translation>
    </message>
    <message>
        <source>For your notes; what is copied is the list above</source>
        <translation>Pour mémoire&#xa0;; c’est la liste ci-dessus qui est copiée</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Choisir le dossier source</translation>
    </message>
    <message>
        <source>&amp;Destination</source>
        <translation>D&amp;estination</translation>
    </message>
    <message>
        <source>Choose or type the folder that the files go to</source>
        <translation>Choisissez ou saisissez le dossier où vont les fichiers</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Choisir la destination de la synchronisation</translation>
    </message>
    <message>
        <source>On a server</source>
        <translation>Sur un serveur</translation>
    </message>
    <message>
        <source>The destination is a folder on another computer, reached over an encrypted connection (ssh)</source>
        <translation>La destination est un dossier sur un autre ordinateur, joint par une connexion chiffrée (ssh)</translation>
    </message>
    <message>
        <source>&amp;User</source>
        <translation>&amp;Utilisateur</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>By date; what is newer at the destination stays</source>
        <translation>Par date&#xa0;; ce qui est plus récent à la destination reste</translation>
    </message>
    <message>
        <source>By content; every file is read</source>
        <translation>Par contenu&#xa0;; chaque fichier est lu</translation>
    </message>
    <message>
        <source>Deletion</source>
        <translation>Suppression</translation>
    </message>
    <message>
        <source>Delete at the dest&amp;ination what is not here</source>
        <translation>Supprimer à &amp;la destination ce qui n’est pas ici</translation>
    </message>
    <message>
        <source>Inside the listed folders only</source>
        <translation>Uniquement à l’intérieur des dossiers de la liste</translation>
    </message>
    <message>
        <source>Remove files here once they are at the destination</source>
        <translation>Supprimer les fichiers d’ici une fois qu’ils sont à la destination</translation>
    </message>
    <message>
        <source>This moves the files instead of copying them</source>
        <translation>Les fichiers sont alors déplacés au lieu d’être copiés</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>How the last synchronisation ended</source>
        <translation>Résultat de la dernière synchronisation</translation>
    </message>
    <message>
        <source>Preview…</source>
        <translation>Aperçu…</translation>
    </message>
    <message>
        <source>Show what would be copied and deleted; nothing is changed</source>
        <translation>Afficher ce qui serait copié et supprimé&#xa0;; rien n’est modifié</translation>
    </message>
    <message>
        <source>Synchronise &amp;now</source>
        <translation>Synchroniser mai&amp;ntenant</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Programs that do the work. Press Choose, or double-click a path to change it.</source>
        <translation>Les programmes qui font le travail. Cliquez sur «&#xa0;Choisir&#xa0;», ou double-cliquez sur un chemin pour le modifier.</translation>
    </message>
    <message>
        <source>External tools</source>
        <translation>Outils externes</translation>
    </message>
    <message>
        <source>Saving settings</source>
        <translation>Enregistrement des réglages</translation>
    </message>
    <message>
        <source>Save settin&amp;gs</source>
        <translation>&amp;Enregistrer les réglages</translation>
    </message>
    <message>
        <source>Save the paths of the tools and the other settings, and check the tools again</source>
        <translation>Enregistrer les chemins des outils et les autres réglages, et contrôler à nouveau les outils</translation>
    </message>
    <message>
        <source>Show &amp;messages</source>
        <translation>&amp;Voir les messages</translation>
    </message>
    <message>
        <source>What the programs said in the last run, where something failed</source>
        <translation>Ce que les programmes ont dit lors de la dernière opération, là où quelque chose a échoué</translation>
    </message>
    <message>
        <source>Programs that are still at work</source>
        <translation>Programmes encore à l’œuvre</translation>
    </message>
    <message>
        <source>End them</source>
        <translation>Les arrêter</translation>
    </message>
    <message>
        <source>End the programs that a failed run has left at work</source>
        <translation>Arrêter les programmes qu’une opération échouée a laissés à l’œuvre</translation>
    </message>
    <message>
        <source>Files that are not encrypted</source>
        <translation>Fichiers non chiffrés</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Les supprimer</translation>
    </message>
    <message>
        <source>Remove these files; the folders that they were made from stay</source>
        <translation>Supprimer ces fichiers&#xa0;; les dossiers dont ils proviennent restent</translation>
    </message>
    <message>
        <source>&amp;Profile</source>
        <translation>&amp;Profil</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Act&amp;ions</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;de</translation>
    </message>
    <message>
        <source>&amp;New…</source>
        <translation>&amp;Nouveau…</translation>
    </message>
    <message>
        <source>&amp;Duplicate…</source>
        <translation>&amp;Dupliquer…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Load the chosen profile</source>
        <translation>&amp;Charger le profil choisi</translation>
    </message>
    <message>
        <source>&amp;Save all profiles</source>
        <translation>&amp;Enregistrer tous les profils</translation>
    </message>
    <message>
        <source>Open this profile at start-&amp;up</source>
        <translation>Ouvrir ce profil &amp;au démarrage</translation>
    </message>
    <message>
        <source>&amp;Options…</source>
        <translation>&amp;Options…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Back up now</source>
        <translation>&amp;Sauvegarder maintenant</translation>
    </message>
    <message>
        <source>&amp;Restore now</source>
        <translation>&amp;Restaurer maintenant</translation>
    </message>
    <message>
        <source>&amp;Synchronise now</source>
        <translation>S&amp;ynchroniser maintenant</translation>
    </message>
    <message>
        <source>Show what synchronising would &amp;do…</source>
        <translation>&amp;Aperçu de la synchronisation…</translation>
    </message>
    <message>
        <source>S&amp;top…</source>
        <translation>Arrê&amp;ter…</translation>
    </message>
    <message>
        <source>Add &amp;folders to back up…</source>
        <translation>Ajouter des &amp;dossiers à sauvegarder…</translation>
    </message>
    <message>
        <source>Add &amp;archives to restore…</source>
        <translation>Ajouter des archi&amp;ves à restaurer…</translation>
    </message>
    <message>
        <source>Save settings and &amp;check the programs</source>
        <translation>Enregistrer les réglages et &amp;contrôler les programmes</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Password</source>
        <translation>&amp;Mot de passe</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>S&amp;ynchroniser</translation>
    </message>
    <message>
        <source>&amp;Messages of the last run</source>
        <translation>M&amp;essages de la dernière opération</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Guide</translation>
    </message>
    <message>
        <source>&amp;Recovery without this program</source>
        <translation>&amp;Récupération sans ce programme</translation>
    </message>
    <message>
        <source>&amp;About Quillorent</source>
        <translation>À &amp;propos de Quillorent</translation>
    </message>
    <message>
        <source>A backup needs more room than its archives do in the end: what is packed and what is encrypted lie here side by side for a while, together about two and a half times as much as the folder</source>
        <translation>Une sauvegarde demande plus de place que ses archives n’en occupent à la fin : ce qui est archivé et ce qui est chiffré se trouvent ici côte à côte pendant un temps, soit environ deux fois et demie la taille du dossier</translation>
    </message>
    <message>
        <source>Of an archive that was made in several parts, the first one is enough; the others only have to be in the same folder</source>
        <translation>D’une archive en plusieurs parties, la première suffit ; les autres doivent seulement se trouver dans le même dossier</translation>
    </message>
    <message>
        <source>The name of an archive tells how it was encrypted; choose it here only where an archive was renamed. AES, Blowfish and Triple DES are ways to do it with a password; S/MIME is the way to do it for a certificate, and takes the private key that belongs to it. Both are chosen where passwords are.</source>
        <translation>Le nom d’une archive indique comment elle a été chiffrée ; ne faites un choix ici que si une archive a été renommée. AES, Blowfish et Triple DES chiffrent avec un mot de passe ; S/MIME chiffre pour un certificat, et demande la clé privée correspondante. Les deux se choisissent là où se trouvent les mots de passe.</translation>
    </message>
</context>
<context>
    <name>MessagePanel</name>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Ce qui ne va pas</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
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
        <translation>Nouveau &amp;nom</translation>
    </message>
    <message>
        <source>Begin with my &amp;usual folders (documents, pictures, desktop)</source>
        <translation>Commencer avec mes dossiers &amp;habituels (documents, images, bureau)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>now: the last one of the list</source>
        <translation>actuel&#xa0;: le dernier de la liste</translation>
    </message>
    <message>
        <source>now: %1</source>
        <translation>actuel&#xa0;: %1</translation>
    </message>
    <message>
        <source>Can&apos;t start</source>
        <translation>Démarrage impossible</translation>
    </message>
    <message>
        <source>Certificate not accepted</source>
        <translation>Certificat refusé</translation>
    </message>
    <message>
        <source>Private key not accepted</source>
        <translation>Clé privée refusée</translation>
    </message>
    <message>
        <source>Can&apos;t save</source>
        <translation>Enregistrement impossible</translation>
    </message>
    <message>
        <source>Settings and profiles</source>
        <translation>Réglages et profils</translation>
    </message>
    <message>
        <source>Programs are missing</source>
        <translation>Des programmes manquent</translation>
    </message>
    <message>
        <source>Changed by others, too</source>
        <translation>Modifié aussi par d’autres</translation>
    </message>
    <message>
        <source>&amp;Save what I changed</source>
        <translation>&amp;Enregistrer mes modifications</translation>
    </message>
    <message>
        <source>&amp;Take what is in the file</source>
        <translation>&amp;Prendre ce qui est dans le fichier</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Save a copy...</source>
        <translation>Enregistrer une &amp;copie...</translation>
    </message>
    <message>
        <source>&amp;Quit without saving</source>
        <translation>&amp;Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>Rename a profile</source>
        <translation>Renommer un profil</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>New profile</source>
        <translation>Nouveau profil</translation>
    </message>
    <message>
        <source>C&amp;reate</source>
        <translation>C&amp;réer</translation>
    </message>
    <message>
        <source>Duplicate a profile</source>
        <translation>Dupliquer un profil</translation>
    </message>
    <message>
        <source>D&amp;uplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>The two are independent of each other once the profiles are saved and the program is started again. Until then a change in one is a change in both.</source>
        <translation>Les deux sont indépendants l’un de l’autre une fois les profils enregistrés et le programme redémarré. D’ici là, une modification de l’un vaut pour les deux.</translation>
    </message>
    <message>
        <source>Name not accepted</source>
        <translation>Nom refusé</translation>
    </message>
</context>
<context>
    <name>PreferencesPanel01</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Ce profil</translation>
    </message>
    <message>
        <source>With a pass&amp;word, encrypt by</source>
        <translation>Avec un &amp;mot de passe, chiffrer par</translation>
    </message>
    <message>
        <source>AES is the right one; the others are there for whoever must open the archives with old programs</source>
        <translation>AES est le bon choix&#xa0;; les autres sont là pour qui doit ouvrir les archives avec d’anciens programmes</translation>
    </message>
    <message>
        <source>AES, 256 bits (recommended)</source>
        <translation>AES, 256&#xa0;bits (recommandé)</translation>
    </message>
    <message>
        <source>Blowfish (old)</source>
        <translation>Blowfish (ancien)</translation>
    </message>
    <message>
        <source>Triple DES (old)</source>
        <translation>Triple DES (ancien)</translation>
    </message>
    <message>
        <source>With a ce&amp;rtificate, encrypt by</source>
        <translation>Avec un &amp;certificat, chiffrer par</translation>
    </message>
    <message>
        <source>S/MIME is the standard by which mail is encrypted for a certificate; other programs can open it</source>
        <translation>S/MIME est la norme selon laquelle les courriels sont chiffrés pour un certificat&#xa0;; d’autres programmes savent l’ouvrir</translation>
    </message>
    <message>
        <source>AES, 256 bits, as in mail (S/MIME)</source>
        <translation>AES, 256&#xa0;bits, comme pour les courriels (S/MIME)</translation>
    </message>
    <message>
        <source>Compress before encryptin&amp;g</source>
        <translation>Compresser &amp;avant le chiffrement</translation>
    </message>
    <message>
        <source>Makes archives of documents, mail and the like much smaller; the size of an archive then tells a little of what it holds</source>
        <translation>Rend bien plus petites les archives de documents, de courriels et autres&#xa0;; la taille d’une archive révèle alors un peu de son contenu</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t ask when the destination is not empty</source>
        <translation>&amp;Ne rien demander si la destination n’est pas vide</translation>
    </message>
    <message>
        <source>Archives of the same name are replaced without a question</source>
        <translation>Les archives de même nom sont remplacées sans question</translation>
    </message>
    <message>
        <source>The program</source>
        <translation>Le programme</translation>
    </message>
    <message>
        <source>Open this profile at &amp;start-up</source>
        <translation>&amp;Ouvrir ce profil au démarrage</translation>
    </message>
    <message>
        <source>Save, and open the profile in use when the program starts</source>
        <translation>Enregistrer, et ouvrir le profil actif au démarrage du programme</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Save changes when &amp;quitting</source>
        <translation>&amp;Enregistrer les modifications en quittant</translation>
    </message>
    <message>
        <source>Without this, the program asks before changes that were not saved are lost</source>
        <translation>Sans cela, le programme pose la question avant que des modifications non enregistrées soient perdues</translation>
    </message>
    <message>
        <source>&amp;Look for a newer version at each start</source>
        <translation>Rechercher une nouvelle &amp;version à chaque démarrage</translation>
    </message>
    <message>
        <source>&amp;Programs that do the work…</source>
        <translation>&amp;Programmes qui font le travail…</translation>
    </message>
    <message>
        <source>Which archiver, encryption tool and copying tool are used, and whether they are in order</source>
        <translation>Quels outils d’archivage, de chiffrement et de copie sont utilisés, et s’ils sont en ordre</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>PreviewPanel01</name>
    <message>
        <source>What would be copied and deleted</source>
        <translation>Ce qui serait copié et supprimé</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Synchronise</source>
        <translation>&amp;Synchroniser</translation>
    </message>
    <message>
        <source>Do what is shown</source>
        <translation>Faire ce qui est affiché</translation>
    </message>
</context>
<context>
    <name>ProfilePanel04</name>
    <message>
        <source>Delete a profile</source>
        <translation>Supprimer un profil</translation>
    </message>
    <message>
        <source>Delete this profile?</source>
        <translation>Supprimer ce profil&#xa0;?</translation>
    </message>
    <message>
        <source>Folders and archives stay as they are; only the list of folders and the options are gone, for good once the profiles are saved.</source>
        <translation>Les dossiers et les archives restent tels quels&#xa0;; seules la liste des dossiers et les options disparaissent, définitivement une fois les profils enregistrés.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>Progress</name>
    <message>
        <source>Time: %1</source>
        <translation>Durée&#xa0;: %1</translation>
    </message>
    <message>
        <source>read: %1</source>
        <translation>lu&#xa0;: %1</translation>
    </message>
    <message>
        <source>more at the destination: %1</source>
        <translation>en plus à la destination&#xa0;: %1</translation>
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
        <translation>Sauvegarde</translation>
    </message>
    <message>
        <source>Backing up…</source>
        <translation>Sauvegarde en cours…</translation>
    </message>
    <message>
        <source>Measuring the folders…</source>
        <translation>Mesure des dossiers…</translation>
    </message>
    <message>
        <source>Progress of the backup</source>
        <translation>Avancement de la sauvegarde</translation>
    </message>
    <message>
        <source>Folders and how far they are</source>
        <translation>Les dossiers et leur avancement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop the backup; archives that are finished stay</source>
        <translation>Arrêter la sauvegarde&#xa0;; les archives terminées restent</translation>
    </message>
</context>
<context>
    <name>ProgressPanel02</name>
    <message>
        <source>Restore</source>
        <translation>Restauration</translation>
    </message>
    <message>
        <source>Progress of restoring</source>
        <translation>Avancement de la restauration</translation>
    </message>
    <message>
        <source>Archives and how far they are</source>
        <translation>Les archives et leur avancement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop; what is restored already stays, and is not complete</source>
        <translation>Arrêter&#xa0;; ce qui est déjà restauré reste, et n’est pas complet</translation>
    </message>
</context>
<context>
    <name>ProgressPanel03</name>
    <message>
        <source>Synchronisation</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>The synchronisation goes on</source>
        <translation>La synchronisation suit son cours</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop; what is copied already stays</source>
        <translation>Arrêter&#xa0;; ce qui est déjà copié reste</translation>
    </message>
</context>
<context>
    <name>Protection</name>
    <message>
        <source>Typed password</source>
        <translation>Mot de passe saisi</translation>
    </message>
    <message>
        <source>Password from the keychain – please look at the Password tab</source>
        <translation>Mot de passe du trousseau – voir l’onglet «&#xa0;Mot de passe&#xa0;»</translation>
    </message>
    <message>
        <source>Password from the keychain – no account chosen yet</source>
        <translation>Mot de passe du trousseau – aucun compte choisi pour l’instant</translation>
    </message>
    <message>
        <source>Password from the keychain – not fetched yet</source>
        <translation>Mot de passe du trousseau – pas encore lu</translation>
    </message>
    <message>
        <source>Password typed for the keychain – not stored in it</source>
        <translation>Mot de passe saisi pour le trousseau – il n’y est pas stocké</translation>
    </message>
    <message>
        <source>Password from the keychain, account %1</source>
        <translation>Mot de passe du trousseau, compte %1</translation>
    </message>
    <message>
        <source>Certificate – none chosen yet</source>
        <translation>Certificat – aucun choisi pour l’instant</translation>
    </message>
    <message>
        <source>Certificate: %1</source>
        <translation>Certificat&#xa0;: %1</translation>
    </message>
    <message>
        <source>Password – none typed yet</source>
        <translation>Mot de passe – pas encore saisi</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Choisir</translation>
    </message>
</context>
<context>
    <name>StopQuestion</name>
    <message>
        <source>Synchronisation in progress</source>
        <translation>Synchronisation en cours</translation>
    </message>
    <message>
        <source>Folders are being synchronised.</source>
        <translation>Des dossiers sont en cours de synchronisation.</translation>
    </message>
    <message>
        <source>Stop the synchronisation?</source>
        <translation>Arrêter la synchronisation&#xa0;?</translation>
    </message>
    <message>
        <source>What is copied already stays, and the next run goes on from there.</source>
        <translation>Ce qui est déjà copié reste, et la prochaine opération reprend à partir de là.</translation>
    </message>
    <message>
        <source>Restoring in progress</source>
        <translation>Restauration en cours</translation>
    </message>
    <message>
        <source>Files are being restored.</source>
        <translation>Des fichiers sont en cours de restauration.</translation>
    </message>
    <message>
        <source>Stop restoring?</source>
        <translation>Arrêter la restauration&#xa0;?</translation>
    </message>
    <message>
        <source>What is restored already stays, and is not complete.</source>
        <translation>Ce qui est déjà restauré reste, et n’est pas complet.</translation>
    </message>
    <message>
        <source>Backup in progress</source>
        <translation>Sauvegarde en cours</translation>
    </message>
    <message>
        <source>A backup is running.</source>
        <translation>Une sauvegarde est en cours.</translation>
    </message>
    <message>
        <source>Stop the backup?</source>
        <translation>Arrêter la sauvegarde&#xa0;?</translation>
    </message>
    <message>
        <source>Archives that are finished stay. Folders that are not finished keep the archive of the backup before this one.</source>
        <translation>Les archives terminées restent. Les dossiers non terminés gardent l’archive de la sauvegarde précédente.</translation>
    </message>
    <message>
        <source>Quitting stops that. %1</source>
        <translation>Quitter y met fin. %1</translation>
    </message>
    <message>
        <source>&amp;Stop and quit</source>
        <translation>&amp;Arrêter et quitter</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>&amp;Keep running</source>
        <translation>Ne &amp;pas arrêter</translation>
    </message>
    <message>
        <source>Looking into an archive</source>
        <translation>Examen d’une archive</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>Le contenu d’une archive est en cours d’examen.</translation>
    </message>
    <message>
        <source>Stop looking into the archive?</source>
        <translation>Arrêter l’examen de l’archive&#xa0;?</translation>
    </message>
    <message>
        <source>Nothing of yours has been changed.</source>
        <translation>Rien de ce qui vous appartient n’a été modifié.</translation>
    </message>
</context>
<context>
    <name>UpdatePanel01</name>
    <message>
        <source>A newer version</source>
        <translation>Une version plus récente</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Its makers say nothing of what is new.</source>
        <translation>Ses auteurs ne disent rien des nouveautés.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>Open the &amp;download page</source>
        <translation>Ouvrir la page de &amp;téléchargement</translation>
    </message>
</context>
<context>
    <name>WarningPanel02</name>
    <message>
        <source>The extraction folder is not empty</source>
        <translation>Le dossier d’extraction n’est pas vide</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>The extraction folder is not empty:</source>
        <translation>Le dossier d’extraction n’est pas vide&#xa0;:</translation>
    </message>
    <message>
        <source>Extraction folder</source>
        <translation>Dossier d’extraction</translation>
    </message>
    <message>
        <source>Files of the same name and place are replaced, others stay as they are.</source>
        <translation>Les fichiers de même nom et de même emplacement sont remplacés, les autres restent tels quels.</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Extract anyway</source>
        <translation>&amp;Extraire quand même</translation>
    </message>
</context>
<context>
    <name>WarningPanel03</name>
    <message>
        <source>The destination is not empty</source>
        <translation>La destination n’est pas vide</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>The destination folder is not empty:</source>
        <translation>Le dossier de destination n’est pas vide&#xa0;:</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>What is there</source>
        <translation>Ce qui s’y trouve</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Back up anyway</source>
        <translation>&amp;Sauvegarder quand même</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>Easy to guess. Five or six words that have nothing to do with each other are better.</source>
        <translation>Facile à deviner. Cinq ou six mots sans aucun rapport entre eux valent mieux.</translation>
    </message>
    <message>
        <source>Hard to guess. One more word makes it strong.</source>
        <translation>Difficile à deviner. Un mot de plus le rend solide.</translation>
    </message>
    <message>
        <source>Very hard to guess. Is it written down in a safe place? A mistyped or forgotten password is a lost backup.</source>
        <translation>Très difficile à deviner. Est-il noté en lieu sûr&#xa0;? Un mot de passe mal saisi ou oublié, c’est une sauvegarde perdue.</translation>
    </message>
    <message>
        <source>Use “%1”, which is chosen but not in use yet</source>
        <translation>Utiliser «&#xa0;%1&#xa0;», qui est choisi mais pas encore actif</translation>
    </message>
    <message>
        <source>Use the chosen profile; it is in use already</source>
        <translation>Utiliser le profil choisi&#xa0;; il est déjà actif</translation>
    </message>
</context>
<context>
    <name>Wording</name>
    <message>
        <source>today at %1</source>
        <translation>aujourd’hui à %1</translation>
    </message>
    <message>
        <source>yesterday at %1</source>
        <translation>hier à %1</translation>
    </message>
    <message>
        <source>on %1 at %2</source>
        <translation>le %1 à %2</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1&#xa0;h %2&#xa0;min</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The program has been moved. Its own tools are used from where they are now, in “%1”: %2.</source>
        <translation>Le programme a été déplacé. Ses propres outils sont désormais utilisés depuis leur emplacement actuel, dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>%1 of %2 programs that do the work are missing or wrong. The Tools tab shows which: choose the right program there, or install it.</source>
        <translation>Programmes manquants ou inadaptés&#xa0;: %1 sur les %2 qui font le travail. L’onglet «&#xa0;Outils&#xa0;» indique lesquels&#xa0;: choisissez-y le bon programme, ou installez-le.</translation>
    </message>
    <message>
        <source>Still at work: %1.</source>
        <translation>Encore à l’œuvre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>… and %1 more.</source>
        <translation>… et %1 de plus.</translation>
    </message>
    <message>
        <source>Files are being restored, and would not be complete.</source>
        <translation>Des fichiers sont en cours de restauration, et ne seraient pas complets.</translation>
    </message>
    <message>
        <source>Folders are being synchronised, and would not be in step.</source>
        <translation>Des dossiers sont en cours de synchronisation, et ne seraient pas identiques des deux côtés.</translation>
    </message>
    <message>
        <source>A backup is running, and would not be complete.</source>
        <translation>Une sauvegarde est en cours, et ne serait pas complète.</translation>
    </message>
    <message>
        <source>Cancelled before anything was done.</source>
        <translation>Annulé avant toute action.</translation>
    </message>
    <message>
        <source>Another profile was opened while the keychain was asked. Start again.</source>
        <translation>Un autre profil a été ouvert pendant que le trousseau était interrogé. Recommencez.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be read:
%2
Their file stays as it is. Repair it, or move it away: the next start makes a new one.</source>
        <translation>Impossible de lire les %1&#xa0;:
%2
Leur fichier reste tel quel. Réparez-le, ou déplacez-le&#xa0;: un nouveau sera créé au prochain démarrage.</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>réglages</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profils</translation>
    </message>
    <message>
        <source>Something is running already, or about to end. Try again when it has ended.</source>
        <translation>Une opération est déjà en cours, ou sur le point de se terminer. Réessayez quand elle aura pris fin.</translation>
    </message>
    <message>
        <source>A run that was broken off has left this, and it is not encrypted:
%1</source>
        <translation>Une opération interrompue a laissé ceci, qui n’est pas chiffré :
%1</translation>
    </message>
    <message>
        <source>Something is running just now. Remove these files when it has ended.</source>
        <translation>Une opération est en cours. Supprimez ces fichiers quand elle aura pris fin.</translation>
    </message>
    <message>
        <source>An archive is being looked into.</source>
        <translation>Le contenu d’une archive est en cours d’examen.</translation>
    </message>
</context>
<context>
    <name>backup</name>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while: the backup will fail. Rename it.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, et un fichier de ce nom est nécessaire pour un moment&#xa0;: la sauvegarde échouera. Renommez-le.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It may be yours, or left in clear by a run that was interrupted. It will be called &quot;%2&quot;, and stay.</source>
        <translation>«&#xa0;%1&#xa0;» existe, et son nom est nécessaire pour un moment. C’est peut-être un fichier à vous, ou un fichier laissé en clair par une opération interrompue. Il s’appellera «&#xa0;%2&#xa0;», et restera.</translation>
    </message>
    <message>
        <source>These archives are in &quot;%1&quot; and will be replaced, other files stay: %2.</source>
        <translation>Ces archives se trouvent dans «&#xa0;%1&#xa0;» et seront remplacées&#xa0;; les autres fichiers restent&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is not empty. Other files stay as they are.</source>
        <translation>La destination «&#xa0;%1&#xa0;» n’est pas vide. Les autres fichiers restent tels quels.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not open with this password: it is not the password of the archives there, or this one is damaged. If it is mistyped, stop and correct it. If you go on, the new archives open with this password only.</source>
        <translation>«&#xa0;%1&#xa0;» ne s’ouvre pas avec ce mot de passe&#xa0;: ce n’est pas celui des archives qui s’y trouvent, ou bien celle-ci est endommagée. S’il est mal saisi, arrêtez et corrigez-le. Si vous continuez, les nouvelles archives ne s’ouvriront qu’avec ce mot de passe.</translation>
    </message>
    <message>
        <source>The password was typed only once, and nothing tells whether it is mistyped. Type it again, in the second field on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>Le mot de passe n’a été saisi qu’une fois, et rien n’indique s’il contient une faute de frappe. Saisissez-le à nouveau, dans le second champ de l’onglet «&#xa0;Mot de passe&#xa0;»&#xa0;: personne ne peut ouvrir ce qu’un mot de passe mal saisi a chiffré.</translation>
    </message>
    <message>
        <source>The password and its repetition differ: one of them is mistyped. Type both again on the Password tab: nobody can open what a mistyped password encrypts.</source>
        <translation>Le mot de passe et sa confirmation diffèrent&#xa0;: l’un d’eux est mal saisi. Saisissez-les tous deux à nouveau dans l’onglet «&#xa0;Mot de passe&#xa0;»&#xa0;: personne ne peut ouvrir ce qu’un mot de passe mal saisi a chiffré.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is listed more than once, and is backed up as often, one after the other, into one archive.</source>
        <translation>«&#xa0;%1&#xa0;» figure plusieurs fois dans la liste, et sera sauvegardé autant de fois, l’une après l’autre, dans une seule archive.</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>il est introuvable</translation>
    </message>
    <message>
        <source>it is neither a file nor a folder</source>
        <translation>ce n’est ni un fichier ni un dossier</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>Backed up %1 of %2 (%3).</source>
        <translation>Sauvegardé&#xa0;: %1 sur %2 (%3).</translation>
    </message>
    <message>
        <source>Not found: %1.</source>
        <translation>Introuvable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Left out, as they are neither files nor folders: %1.</source>
        <translation>Ignoré, car ni fichier ni dossier&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The former archive is called &quot;%1&quot; now: %2.</source>
        <translation>L’archive précédente s’appelle maintenant «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left and is not encrypted: run the backup again, or remove it.</source>
        <translation>«&#xa0;%1&#xa0;» est resté et n’est pas chiffré&#xa0;: relancez la sauvegarde, ou supprimez-le.</translation>
    </message>
    <message>
        <source>The profile has no folders. Add those that are to be backed up.</source>
        <translation>Le profil n’a pas de dossiers. Ajoutez ceux qui doivent être sauvegardés.</translation>
    </message>
    <message>
        <source>The destination that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>La destination affichée n’est pas celle de ce profil. Choisissez-la à nouveau.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the archives go to.</source>
        <translation>Aucune destination n’est choisie. Choisissez le dossier où vont les archives.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>La destination «&#xa0;%1&#xa0;» n’existe pas ou n’est pas un dossier. Connectez son disque, ou choisissez-en une autre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no size of volumes, the files that an archive is split into. Choose a size such as 700 MB, or switch the splitting off.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une taille de volume (les fichiers en lesquels une archive est découpée). Choisissez une taille comme 700&#xa0;MB, ou désactivez le découpage.</translation>
    </message>
    <message>
        <source>The archive of &quot;%1&quot; would have a name that is too long for a file. Rename it, or back up the folder that it lies in.</source>
        <translation>L’archive de «&#xa0;%1&#xa0;» aurait un nom trop long pour un fichier. Renommez-le, ou sauvegardez le dossier dans lequel il se trouve.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; and &quot;%2&quot; would both need the file &quot;%3&quot; in the destination, and one archive would replace the other. Rename one of them, or back it up by a profile of its own.</source>
        <translation>«&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;» auraient tous deux besoin du fichier «&#xa0;%3&#xa0;» dans la destination, et une archive remplacerait l’autre. Renommez l’un des deux, ou sauvegardez-le avec un profil à part.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is on the list, and its name is needed for the archive of &quot;%2&quot;. Choose another destination, or rename it.</source>
        <translation>«&#xa0;%1&#xa0;» est dans la liste, et son nom est nécessaire pour l’archive de «&#xa0;%2&#xa0;». Choisissez une autre destination, ou renommez-le.</translation>
    </message>
    <message>
        <source>No password was fetched from the keychain. Fetch it: without a password nothing is backed up.</source>
        <translation>Aucun mot de passe n’a été lu dans le trousseau. Lisez-le&#xa0;: sans mot de passe, rien n’est sauvegardé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there, and is left out. Connect its disk, or remove it from the list.</source>
        <translation>«&#xa0;%1&#xa0;» est introuvable, et sera ignoré. Connectez son disque, ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is %2, and is left out.</source>
        <translation>«&#xa0;%1&#xa0;» est %2, et sera ignoré.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link, and only the link itself would be backed up, nothing that it leads to. Put a slash behind it, or add the folder that it leads to.</source>
        <translation>«&#xa0;%1&#xa0;» est un lien, et seul le lien lui-même serait sauvegardé, rien de ce à quoi il mène. Ajoutez une barre oblique à la fin, ou ajoutez le dossier auquel il mène.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; lies in &quot;%2&quot;, so each archive would hold the ones before it. Choose another destination.</source>
        <translation>La destination «&#xa0;%1&#xa0;» se trouve dans «&#xa0;%2&#xa0;»&#xa0;: chaque archive contiendrait donc les précédentes. Choisissez une autre destination.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made.</source>
        <translation>« %1 » ne peut pas recevoir un autre nom le temps de créer la nouvelle archive.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be given another name while the new archive is made: %2.</source>
        <translation>« %1 » ne peut pas recevoir un autre nom le temps de créer la nouvelle archive : %2.</translation>
    </message>
    <message>
        <source>Something is missing in the settings file, and without it files would be lost: %1. Repair the file, or move it away: the next start makes a new one.</source>
        <translation>Il manque au fichier de réglages quelque chose sans quoi des fichiers seraient perdus : %1. Réparez ce fichier, ou déplacez-le : un nouveau sera créé au prochain démarrage.</translation>
    </message>
</context>
<context>
    <name>extract</name>
    <message>
        <source>&quot;%1&quot; is no archive</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une archive</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in &quot;%2&quot;, so nothing was brought back. The archive&apos;s paths look like &quot;%3&quot;.</source>
        <translation>Il n’y a pas de «&#xa0;%1&#xa0;» dans «&#xa0;%2&#xa0;»&#xa0;: rien n’a donc été restauré. Les chemins de l’archive ressemblent à «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not extracted: its path has &quot;part&quot; and, after that, a number as later volumes have it. Move or rename it, and add it again.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas extrait&#xa0;: son chemin contient «&#xa0;part&#xa0;» suivi d’un numéro, comme celui des volumes qui suivent le premier. Déplacez-le ou renommez-le, puis ajoutez-le à nouveau.</translation>
    </message>
    <message>
        <source>The first volume is missing: &quot;%1&quot; is volume %2 of its set. Add the first one, &quot;%3.part1.rar&quot; or &quot;…part01.rar&quot;.</source>
        <translation>Le premier volume manque&#xa0;: «&#xa0;%1&#xa0;» est le volume %2 de sa série. Ajoutez le premier, «&#xa0;%3.part1.rar&#xa0;» ou «&#xa0;…part01.rar&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be the path of anything in an archive. Name a file or a folder as the archive has it, such as &quot;home/anna/letter&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être un chemin dans une archive. Indiquez un fichier ou un dossier comme l’archive le nomme, par exemple «&#xa0;home/anna/letter&#xa0;».</translation>
    </message>
    <message>
        <source>%1 Extract again; if it happens again, the machine may be short of memory.</source>
        <translation>%1 Relancez l’extraction&#xa0;; si cela se reproduit, la machine manque peut-être de mémoire.</translation>
    </message>
    <message>
        <source>The disk of &quot;%1&quot; is full. Make room, or choose a folder on another disk, and extract again.</source>
        <translation>Le disque de «&#xa0;%1&#xa0;» est plein. Libérez de la place, ou choisissez un dossier sur un autre disque, puis relancez l’extraction.</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;. Choose another folder, or change its permissions.</source>
        <translation>Rien ne peut être écrit dans «&#xa0;%1&#xa0;». Choisissez un autre dossier, ou modifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it, or extract into another folder.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, et un fichier de ce nom est nécessaire pour un moment. Renommez-le, ou extrayez dans un autre dossier.</translation>
    </message>
    <message>
        <source>A volume is missing: %1. Put all volumes of the set into one folder and extract again.</source>
        <translation>Un volume manque&#xa0;: %1. Placez tous les volumes de la série dans un même dossier, puis relancez l’extraction.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the first volume of its set. Add the first one; the others are found by it.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas le premier volume de sa série. Ajoutez le premier&#xa0;; il permet de trouver les autres.</translation>
    </message>
    <message>
        <source>The volumes of &quot;%1&quot; do not belong together: %2. Put those of one set into one folder.</source>
        <translation>Les volumes de «&#xa0;%1&#xa0;» ne vont pas ensemble&#xa0;: %2. Placez ceux d’une même série dans un même dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is cut short: a part of it was lost when it was copied, or the copy is not finished. Copy it again: %2.</source>
        <translation>«&#xa0;%1&#xa0;» est tronqué&#xa0;: une partie a été perdue lors de la copie, ou la copie n’est pas terminée. Copiez-le à nouveau&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is damaged: %2. Fetch another copy of it.</source>
        <translation>«&#xa0;%1&#xa0;» est endommagé&#xa0;: %2. Procurez-vous une autre copie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no archive, whatever its name: %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une archive, malgré son nom&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be unpacked: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être décompressé&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The private key can&apos;t be read. Choose the one that belongs to the certificate, on the Password tab.</source>
        <translation>La clé privée est illisible. Choisissez celle qui va avec le certificat, dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>The certificate can&apos;t be read. Choose the one that the archive was encrypted for, on the Password tab.</source>
        <translation>Le certificat est illisible. Choisissez celui pour lequel l’archive a été chiffrée, dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; is damaged, or was not encrypted for a certificate: %2. Fetch another copy, or choose another decryption method.</source>
        <translation>Le contenu de «&#xa0;%1&#xa0;» est endommagé, ou n’a pas été chiffré pour un certificat&#xa0;: %2. Procurez-vous une autre copie, ou choisissez une autre méthode de déchiffrement.</translation>
    </message>
    <message>
        <source>The private key or the certificate is not usable: %1. A key with a pass phrase can&apos;t be used.</source>
        <translation>La clé privée ou le certificat est inutilisable&#xa0;: %1. Une clé protégée par une phrase secrète ne peut pas être utilisée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with this private key and certificate: %2. Choose the pair that it was encrypted for, on the Password tab.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être déchiffré avec cette clé privée et ce certificat&#xa0;: %2. Choisissez la paire pour laquelle il a été chiffré, dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a link where the encrypted file should be. It was not made by a backup: don&apos;t trust it.</source>
        <translation>«&#xa0;%1&#xa0;» contient un lien là où devrait se trouver le fichier chiffré. Cette archive ne vient pas d’une sauvegarde&#xa0;: ne vous y fiez pas.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the decryption method, and extract again.</source>
        <translation>Le nom de «&#xa0;%1&#xa0;» n’indique pas comment il a été chiffré. Choisissez la méthode de déchiffrement, puis relancez l’extraction.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted with the method that is chosen; its name tells another one. Choose the automatic method.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être déchiffré avec la méthode choisie&#xa0;; son nom en indique une autre. Choisissez la méthode automatique.</translation>
    </message>
    <message>
        <source>The password is wrong: &quot;%1&quot; can&apos;t be decrypted with it. Type the one that the archive was made with.</source>
        <translation>Le mot de passe est incorrect&#xa0;: il ne permet pas de déchiffrer «&#xa0;%1&#xa0;». Saisissez celui avec lequel l’archive a été créée.</translation>
    </message>
    <message>
        <source>What is in &quot;%1&quot; was not encrypted by a password, or it is damaged. Choose another decryption method, or fetch another copy.</source>
        <translation>Le contenu de «&#xa0;%1&#xa0;» n’a pas été chiffré par un mot de passe, ou il est endommagé. Choisissez une autre méthode de déchiffrement, ou procurez-vous une autre copie.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be decrypted: %2.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être déchiffré&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The password is probably wrong: what &quot;%1&quot; was decrypted to is no archive. Type the one that the archive was made with.</source>
        <translation>Le mot de passe est probablement incorrect&#xa0;: le résultat du déchiffrement de «&#xa0;%1&#xa0;» n’est pas une archive. Saisissez celui avec lequel l’archive a été créée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds names that lead out of &quot;%2&quot;: %3. They were left out; don&apos;t trust the archive.</source>
        <translation>«&#xa0;%1&#xa0;» contient des noms qui mènent hors de «&#xa0;%2&#xa0;»&#xa0;: %3. Ils ont été ignorés&#xa0;; ne vous fiez pas à cette archive.</translation>
    </message>
    <message>
        <source>A name in &quot;%1&quot; is taken by something else in &quot;%2&quot;: %3. Rename that, or extract into an empty folder.</source>
        <translation>Un nom de «&#xa0;%1&#xa0;» est déjà pris par autre chose dans «&#xa0;%2&#xa0;»&#xa0;: %3. Renommez cet élément, ou extrayez dans un dossier vide.</translation>
    </message>
    <message>
        <source>The archiver left out a link of &quot;%1&quot;: %2. It makes none that lead to an absolute path or out of the folder. Quillorent&apos;s own archiver does: choose it on the Tools tab, and extract again.</source>
        <translation>L’outil d’archivage a ignoré un lien de «&#xa0;%1&#xa0;»&#xa0;: %2. Il n’en crée aucun qui mène à un chemin absolu ou hors du dossier. L’outil d’archivage de Quillorent le fait&#xa0;: choisissez-le dans l’onglet «&#xa0;Outils&#xa0;», puis relancez l’extraction.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of the archives, and its name is needed for what comes out of &quot;%2&quot;. Extract into another folder.</source>
        <translation>«&#xa0;%1&#xa0;» est l’une des archives, et son nom est nécessaire pour ce qui sort de «&#xa0;%2&#xa0;». Extrayez dans un autre dossier.</translation>
    </message>
    <message>
        <source>The set of &quot;%1&quot; seems incomplete or mixed: %2. Put all its volumes, and no others, into one folder.</source>
        <translation>La série de «&#xa0;%1&#xa0;» semble incomplète ou mélangée&#xa0;: %2. Placez tous ses volumes, et aucun autre, dans un même dossier.</translation>
    </message>
    <message>
        <source>No private key is chosen. Without it nothing that was encrypted for a certificate can be decrypted.</source>
        <translation>Aucune clé privée n’est choisie. Sans elle, rien de ce qui a été chiffré pour un certificat ne peut être déchiffré.</translation>
    </message>
    <message>
        <source>The private key &quot;%1&quot; can&apos;t be read.</source>
        <translation>La clé privée «&#xa0;%1&#xa0;» est illisible.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose the one that the archives were encrypted for.</source>
        <translation>Aucun certificat n’est choisi. Choisissez celui pour lequel les archives ont été chiffrées.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; can&apos;t be read.</source>
        <translation>Le certificat «&#xa0;%1&#xa0;» est illisible.</translation>
    </message>
    <message>
        <source>The name of &quot;%1&quot; does not tell how it was encrypted. Choose the method, unless the name of what is in it tells.</source>
        <translation>Le nom de «&#xa0;%1&#xa0;» n’indique pas comment il a été chiffré. Choisissez la méthode, à moins que le nom de son contenu ne l’indique.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was encrypted by a password, and a certificate is chosen. Choose a password on the Password tab.</source>
        <translation>«&#xa0;%1&#xa0;» a été chiffré par un mot de passe, et c’est un certificat qui est choisi. Choisissez un mot de passe dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, et un fichier de ce nom est nécessaire pour un moment. Renommez-le.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there, and its name is needed for a while. It will get another name, which begins with &quot;kept&quot;, and stay.</source>
        <translation>«&#xa0;%1&#xa0;» existe, et son nom est nécessaire pour un moment. Il recevra un autre nom, qui commence par «&#xa0;kept&#xa0;», et restera.</translation>
    </message>
    <message>
        <source>Two archives need the name &quot;%1&quot; for a while. They are extracted one after the other; what the second would replace goes into a folder of its own.</source>
        <translation>Deux archives ont besoin du nom «&#xa0;%1&#xa0;» pour un moment. Elles sont extraites l’une après l’autre&#xa0;; ce que la seconde remplacerait va dans un dossier à part.</translation>
    </message>
    <message>
        <source>Single files are looked for in one archive at a time. Choose one archive, or of a set its first volume.</source>
        <translation>La recherche de fichiers porte sur une seule archive à la fois. Choisissez une archive ou, d’une série, son premier volume.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; does not exist or is no folder. Connect its disk, or choose another one.</source>
        <translation>Le dossier d’extraction «&#xa0;%1&#xa0;» n’existe pas ou n’est pas un dossier. Connectez son disque, ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not there any more, or can&apos;t be read.</source>
        <translation>«&#xa0;%1&#xa0;» n’existe plus, ou est illisible.</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name are replaced.</source>
        <translation>Le dossier d’extraction «&#xa0;%1&#xa0;» n’est pas vide. Les fichiers de même nom seront remplacés.</translation>
    </message>
    <message>
        <source>its name is that of a later volume</source>
        <translation>son nom est celui d’un volume qui suit le premier</translation>
    </message>
    <message numerus="yes">
        <source>Looked into the archive: it holds %n file(s) and folder(s).</source>
        <translation>
            <numerusform>L’archive a été examinée&#xa0;: elle contient %n fichier ou dossier.</numerusform>
            <numerusform>L’archive a été examinée&#xa0;: elle contient %n fichiers et dossiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Brought back what was chosen, %n file(s) or folder(s), to &quot;%1&quot;.</source>
        <translation>
            <numerusform>La sélection, %n fichier ou dossier, a été restaurée dans «&#xa0;%1&#xa0;».</numerusform>
            <numerusform>La sélection, %n fichiers et dossiers, a été restaurée dans «&#xa0;%1&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>Extracted %1 of %2 into &quot;%3&quot;.</source>
        <translation>Archives extraites dans «&#xa0;%3&#xa0;»&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>Échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancelled. What was chosen may have been brought back in part.</source>
        <translation>Annulé. La sélection n’a peut-être été restaurée qu’en partie.</translation>
    </message>
    <message>
        <source>Cancelled. Files left in the extraction folder may be incomplete.</source>
        <translation>Annulé. Les fichiers laissés dans le dossier d’extraction sont peut-être incomplets.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has what would have replaced files of another archive.</source>
        <translation>«&#xa0;%1&#xa0;» contient ce qui aurait remplacé les fichiers d’une autre archive.</translation>
    </message>
    <message>
        <source>Not extracted, as they look like later volumes: %1.</source>
        <translation>Non extrait, car ressemblant à des volumes qui suivent le premier&#xa0;: %1.</translation>
    </message>
    <message>
        <source>volume %1 is there twice, so some are leftovers of another backup</source>
        <translation>le volume %1 existe en double&#xa0;: certains sont donc des restes d’une autre sauvegarde</translation>
    </message>
    <message>
        <source>volume %1 is missing</source>
        <translation>le volume %1 manque</translation>
    </message>
    <message>
        <source>all volumes but the first are missing</source>
        <translation>tous les volumes manquent, sauf le premier</translation>
    </message>
    <message>
        <source>volume %1 is shorter than the one before it. Either it was cut short, or it is the last one, and those from volume %2 on are leftovers of a larger backup</source>
        <translation>le volume %1 est plus court que le précédent. Soit il a été tronqué, soit c’est le dernier, et ceux à partir du volume %2 sont des restes d’une sauvegarde plus grande</translation>
    </message>
    <message>
        <source>volume %1 is as large as those before it, so it may not be the last</source>
        <translation>le volume %1 est aussi grand que les précédents&#xa0;: ce n’est donc peut-être pas le dernier</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not hold the file &quot;%2&quot; that its name promises. Give the archive back the name that it had; if it never had another one, no backup has made it.</source>
        <translation>« %1 » ne contient pas le fichier « %2 » que son nom annonce. Rendez à l’archive le nom qu’elle portait ; si elle n’en a jamais eu d’autre, elle ne vient pas d’une sauvegarde.</translation>
    </message>
    <message>
        <source>What &quot;%1&quot; was decrypted to is no archive. The private key is wrong, or no backup has made the archive.</source>
        <translation>Le résultat du déchiffrement de « %1 » n’est pas une archive. La clé privée n’est pas la bonne, ou l’archive ne vient pas d’une sauvegarde.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing of yours was changed.</source>
        <translation>Annulé. Rien de ce qui vous appartient n’a été modifié.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link</source>
        <translation>« %1 » est un lien</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of &quot;%1&quot; can&apos;t be made in &quot;%2&quot;, beginning with this: %3. All others are there. Extract into a folder on another disk to have these, too.</source>
        <translation>
            <numerusform>%n fichier de «&#xa0;%1&#xa0;» ne peut pas être créé dans «&#xa0;%2&#xa0;»&#xa0;: %3. Tout le reste est là. Extrayez dans un dossier d’un autre disque pour l’obtenir aussi.</numerusform>
            <numerusform>%n fichiers de «&#xa0;%1&#xa0;» ne peuvent pas être créés dans «&#xa0;%2&#xa0;», à commencer par celui-ci&#xa0;: %3. Tout le reste est là. Extrayez dans un dossier d’un autre disque pour les obtenir aussi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>extraction</name>
    <message>
        <source>No archives are chosen. Add those that are to be extracted.</source>
        <translation>Aucune archive n’est choisie. Ajoutez celles qui doivent être extraites.</translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is extracted.</source>
        <translation>Aucun mot de passe n’est indiqué. Saisissez-en un dans l’onglet «&#xa0;Mot de passe&#xa0;»&#xa0;; sans mot de passe, rien n’est extrait.</translation>
    </message>
    <message>
        <source>No extraction folder is chosen. Choose the folder that the contents go to.</source>
        <translation>Aucun dossier d’extraction n’est choisi. Choisissez le dossier où va le contenu.</translation>
    </message>
    <message>
        <source>The extraction folder that is shown is not this profile&apos;s own. Choose it again.</source>
        <translation>Le dossier d’extraction affiché n’est pas celui de ce profil. Choisissez-le à nouveau.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>Aucun certificat n’est choisi. Choisissez-en un dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>No archive is chosen. Add the one that has the file.</source>
        <translation>Aucune archive n’est choisie. Ajoutez celle qui contient le fichier.</translation>
    </message>
    <message>
        <source>Add archives</source>
        <translation>Ajouter des archives</translation>
    </message>
    <message>
        <source>There is no archive among them: archives end in &quot;.rar&quot;.</source>
        <translation>Il n’y a aucune archive parmi ces éléments&#xa0;: les archives se terminent par &quot;.rar&quot;.</translation>
    </message>
    <message>
        <source>Choose where the archives are extracted to</source>
        <translation>Choisir où les archives sont extraites</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made. Choose another one.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» ne peut pas être créé. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Testing the archives…</source>
        <translation>Test des archives…</translation>
    </message>
    <message>
        <source>Testing &quot;%1&quot;…</source>
        <translation>Test de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Restoring…</source>
        <translation>Restauration en cours…</translation>
    </message>
    <message>
        <source>Looking into &quot;%1&quot;…</source>
        <translation>Examen du contenu de « %1 »…</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>a pipe, a socket or a device</source>
        <translation>un tube, une socket ou un périphérique</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a link or a file in the destination, where a folder is needed</source>
        <translation>«&#xa0;%1&#xa0;» est un lien ou un fichier dans la destination, là où il faut un dossier</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>There may not be enough room: about %1 are needed, and %2 are free in &quot;%3&quot;.</source>
        <translation>La place pourrait manquer&#xa0;: il faut environ %1, et %2 sont libres dans «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>Nothing may be written into &quot;%1&quot;: %2. Choose another folder, or change its permissions.</source>
        <translation>Rien ne peut être écrit dans «&#xa0;%1&#xa0;»&#xa0;: %2. Choisissez un autre dossier, ou modifiez ses droits d’accès.</translation>
    </message>
    <message>
        <source>a file</source>
        <translation>un fichier</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>un dossier</translation>
    </message>
    <message>
        <source>a link</source>
        <translation>un lien</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder</source>
        <translation>« %1 » est un dossier</translation>
    </message>
</context>
<context>
    <name>folders</name>
    <message>
        <source>The password is that of the account &quot;%1&quot;, and the account that is chosen is &quot;%2&quot;. Fetch its password on the Password tab, or choose the other account again.</source>
        <translation>Le mot de passe est celui du compte «&#xa0;%1&#xa0;», et le compte choisi est «&#xa0;%2&#xa0;». Lisez son mot de passe dans l’onglet «&#xa0;Mot de passe&#xa0;», ou choisissez à nouveau l’autre compte.</translation>
    </message>
    <message>
        <source>Add folders and files</source>
        <translation>Ajouter des dossiers et des fichiers</translation>
    </message>
    <message>
        <source>Choose the destination of the archives</source>
        <translation>Choisir la destination des archives</translation>
    </message>
</context>
<context>
    <name>headless</name>
    <message>
        <source>The profile encrypts for a certificate; a password does not go with it.</source>
        <translation>Le profil chiffre pour un certificat&#xa0;; un mot de passe ne va pas avec.</translation>
    </message>
    <message>
        <source>There is no archive &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’archive «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The extraction folder &quot;%1&quot; is not empty. Files of the same name would be replaced.</source>
        <translation>Le dossier d’extraction «&#xa0;%1&#xa0;» n’est pas vide. Les fichiers de même nom seraient remplacés.</translation>
    </message>
    <message>
        <source>There are no profiles.</source>
        <translation>Il n’y a aucun profil.</translation>
    </message>
    <message>
        <source>There is no profile &quot;%1&quot;; there are: %2.</source>
        <translation>Il n’y a pas de profil «&#xa0;%1&#xa0;»&#xa0;; il y a&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Try &quot;quillorent-run --help&quot;.</source>
        <translation>Essayez &quot;quillorent-run --help&quot;.</translation>
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
        <translation>Fait ce que fait la fenêtre de Quillorent, sans fenêtre.

Commandes&#xa0;:
  backup [PROFILE]                  sauvegarder les dossiers d’un profil
  extract [PROFILE] -- ARCHIVE...   refaire des dossiers à partir d’archives&#xa0;; d’une série,
                                    le premier volume, ou un dossier d’archives
  list [PROFILE] -- ARCHIVE         lister ce que contient une archive&#xa0;: octets, date, chemin,
                                    par tabulations&#xa0;; mot de passe, place, temps comme extract
  sync [PROFILE]                    synchroniser les fichiers et dossiers d’un profil
  tools                             lister les outils externes&#xa0;: nom, chemin, ok ou non
  profiles                          lister les profils&#xa0;; * marque celui ouvert au démarrage

Code de retour&#xa0;: 0 terminé, 1 échec ou annulation, 2 n’a pas pu démarrer ou
ne devait pas continuer (voir --yes), 64 mauvaise utilisation.</translation>
    </message>
    <message>
        <source>Show this text.</source>
        <translation>Afficher ce texte.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>Take the password from the first line of FILE; - is standard input.</source>
        <translation>Prendre le mot de passe dans la première ligne de FILE&#xa0;; - désigne l’entrée standard.</translation>
    </message>
    <message>
        <source>Bring back PATH alone, a file or folder of the one archive, as list tells it; may be given several times. Nothing is replaced: what is there gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Ne restaurer que PATH, un fichier ou dossier de l’unique archive, tel que list l’indique&#xa0;; peut être donné plusieurs fois. Rien n’est remplacé&#xa0;: ce qui existe reçoit un nom qui commence par «&#xa0;kept-&#xa0;».</translation>
    </message>
    <message>
        <source>Extract into FOLDER instead of the profile&apos;s extraction folder.</source>
        <translation>Extraire dans FOLDER au lieu du dossier d’extraction du profil.</translation>
    </message>
    <message>
        <source>Decrypt by METHOD: aes, bf, 3d, smime, or auto, by the archive&apos;s name.</source>
        <translation>Déchiffrer par METHOD&#xa0;: aes, bf, 3d, smime, ou auto, selon le nom de l’archive.</translation>
    </message>
    <message>
        <source>Go on in spite of what is found before the run: archives that will be replaced, too little room, files that will be deleted, and the like. What would lose files is refused all the same.</source>
        <translation>Continuer malgré ce qui est constaté avant l’opération&#xa0;: archives qui seront remplacées, manque de place, fichiers qui seront supprimés, et ainsi de suite. Ce qui perdrait des fichiers est refusé malgré tout.</translation>
    </message>
    <message>
        <source>Print the run&apos;s record on standard output when it has ended.</source>
        <translation>Écrire le compte rendu de l’opération sur la sortie standard à la fin.</translation>
    </message>
    <message>
        <source>Show progress even where no terminal is.</source>
        <translation>Afficher l’avancement même sans terminal.</translation>
    </message>
    <message>
        <source>backup, extract, list, sync, tools or profiles.</source>
        <translation>backup, extract, list, sync, tools ou profiles.</translation>
    </message>
    <message>
        <source>The profile; without it the one that the window would open.</source>
        <translation>Le profil&#xa0;; à défaut, celui que la fenêtre ouvrirait.</translation>
    </message>
    <message>
        <source>A command is missing: backup, extract, list, sync, tools or profiles.</source>
        <translation>Il manque une commande&#xa0;: backup, extract, list, sync, tools ou profiles.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command; there are backup, extract, list, sync, tools and profiles.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une commande&#xa0;; il y a backup, extract, list, sync, tools et profiles.</translation>
    </message>
    <message>
        <source>Archives are missing: name them behind &quot;--&quot;.</source>
        <translation>Il manque des archives&#xa0;: indiquez-les après &quot;--&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one word too many.</source>
        <translation>«&#xa0;%1&#xa0;» est un mot de trop.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» ne va pas avec «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no method; there are %2.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une méthode&#xa0;; il y a %2.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>l’entrée standard</translation>
    </message>
    <message>
        <source>The first line of %1 is longer than any password can be. Give a file whose first line is the password alone.</source>
        <translation>La première ligne de %1 est plus longue qu’aucun mot de passe ne peut l’être. Indiquez un fichier dont la première ligne ne contient que le mot de passe.</translation>
    </message>
    <message>
        <source>The password in %1 is not UTF-8 text. Save the file as UTF-8.</source>
        <translation>Le mot de passe dans %1 n’est pas du texte UTF-8. Enregistrez le fichier en UTF-8.</translation>
    </message>
    <message>
        <source>what was typed</source>
        <translation>ce qui a été saisi</translation>
    </message>
    <message>
        <source>The first line of %1 is empty. Write the password there.</source>
        <translation>La première ligne de %1 est vide. Écrivez-y le mot de passe.</translation>
    </message>
    <message>
        <source>Can&apos;t read the password from %1: %2. Give another file.</source>
        <translation>Impossible de lire le mot de passe dans %1&#xa0;: %2. Indiquez un autre fichier.</translation>
    </message>
    <message>
        <source>The password was not typed the same way twice. Nothing was done.</source>
        <translation>Le mot de passe n’a pas été saisi deux fois de la même façon. Rien n’a été fait.</translation>
    </message>
    <message>
        <source>Say --yes to go on all the same.</source>
        <translation>Ajoutez --yes pour continuer malgré tout.</translation>
    </message>
    <message>
        <source>No password was typed. Nothing was done.</source>
        <translation>Aucun mot de passe n’a été saisi. Rien n’a été fait.</translation>
    </message>
    <message>
        <source>Password for the archives: </source>
        <translation>Mot de passe des archives : </translation>
    </message>
    <message>
        <source>The same password again: </source>
        <translation>Le même mot de passe encore une fois : </translation>
    </message>
    <message>
        <source>The two passwords are not the same. Type both again.</source>
        <translation>Les deux mots de passe ne sont pas identiques. Saisissez-les tous les deux à nouveau.</translation>
    </message>
    <message>
        <source>Do the same again, or remove them.</source>
        <translation>Recommencez la même opération, ou supprimez-les.</translation>
    </message>
</context>
<context>
    <name>keychain</name>
    <message>
        <source>The keychain did what it was asked to.</source>
        <translation>Le trousseau a fait ce qui lui était demandé.</translation>
    </message>
    <message>
        <source>The keychain holds no such password.</source>
        <translation>Le trousseau ne contient pas ce mot de passe.</translation>
    </message>
    <message>
        <source>The keychain holds a password of that name already. It stays as it is: remove it with your desktop&apos;s password program first, or choose another account name.</source>
        <translation>Le trousseau contient déjà un mot de passe de ce nom. Il reste tel quel&#xa0;: supprimez-le d’abord avec le programme de mots de passe de votre bureau, ou choisissez un autre nom de compte.</translation>
    </message>
    <message>
        <source>No keychain service runs in this session. Start one (any Secret Service will do), or type the password.</source>
        <translation>Aucun service de trousseau ne fonctionne dans cette session. Démarrez-en un (tout Secret Service convient), ou saisissez le mot de passe.</translation>
    </message>
    <message>
        <source>The keychain service has no default keychain. Create one with your desktop&apos;s password program.</source>
        <translation>Le service de trousseau n’a pas de trousseau par défaut. Créez-en un avec le programme de mots de passe de votre bureau.</translation>
    </message>
    <message>
        <source>The keychain is locked. Unlock it and try again.</source>
        <translation>Le trousseau est verrouillé. Déverrouillez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>The keychain is still locked: its password was not given, or it could not be asked for. Try again, or unlock it with your desktop&apos;s password program.</source>
        <translation>Le trousseau est toujours verrouillé&#xa0;: son mot de passe n’a pas été donné, ou il n’a pas pu être demandé. Réessayez, ou déverrouillez-le avec le programme de mots de passe de votre bureau.</translation>
    </message>
    <message>
        <source>The keychain service refused. Look at your desktop&apos;s password program for the reason.</source>
        <translation>Le service de trousseau a refusé. Cherchez-en la raison dans le programme de mots de passe de votre bureau.</translation>
    </message>
    <message>
        <source>The keychain service does not answer. Try again later, or restart it; whether it stored something shows when it answers again.</source>
        <translation>Le service de trousseau ne répond pas. Réessayez plus tard, ou redémarrez-le&#xa0;; on verra s’il a stocké quelque chose quand il répondra à nouveau.</translation>
    </message>
    <message>
        <source>The keychain was not waited for any longer.</source>
        <translation>L’attente du trousseau a été interrompue.</translation>
    </message>
    <message>
        <source>That password is not in the keychain.</source>
        <translation>Ce mot de passe n’est pas dans le trousseau.</translation>
    </message>
    <message>
        <source>A password of this kind does not have that attribute.</source>
        <translation>Un mot de passe de ce type n’a pas cet attribut.</translation>
    </message>
    <message>
        <source>The keychain can&apos;t hold that name: it is missing, or is no proper text.</source>
        <translation>Le trousseau ne peut pas conserver ce nom&#xa0;: il manque, ou n’est pas un texte correct.</translation>
    </message>
</context>
<context>
    <name>keys</name>
    <message>
        <source>(no subject)</source>
        <translation>(sans titulaire)</translation>
    </message>
    <message>
        <source>%1%2 – valid from %3 to %4</source>
        <translation>%1%2 – valable du %3 au %4</translation>
    </message>
    <message>
        <source>This certificate is not valid before %1. Check the computer&apos;s clock, or choose another one.</source>
        <translation>Ce certificat n’est pas valable avant le %1. Vérifiez l’horloge de l’ordinateur, ou choisissez-en un autre.</translation>
    </message>
    <message>
        <source>This certificate has expired on %1. What it encrypted still opens with its private key; for new archives choose one that is valid.</source>
        <translation>Ce certificat a expiré le %1. Ce qu’il a chiffré s’ouvre toujours avec sa clé privée&#xa0;; pour de nouvelles archives, choisissez un certificat valable.</translation>
    </message>
    <message>
        <source>This certificate expires today.</source>
        <translation>Ce certificat expire aujourd’hui.</translation>
    </message>
    <message>
        <source>This certificate expires tomorrow.</source>
        <translation>Ce certificat expire demain.</translation>
    </message>
    <message numerus="yes">
        <source>This certificate expires in %n days, on %1.</source>
        <translation>
            <numerusform>Ce certificat expire dans %n jour, le %1.</numerusform>
            <numerusform>Ce certificat expire dans %n jours, le %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no name</source>
        <translation>il n’y a pas de nom</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>No file was chosen.</source>
        <translation>Aucun fichier n’a été choisi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: %2.</source>
        <translation>«&#xa0;%1&#xa0;» est illisible&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty.</source>
        <translation>«&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>

OpenSSL says: </source>
        <translation>

OpenSSL dit&#xa0;: </translation>
    </message>
    <message>
        <source>&quot;%1&quot; looks like a certificate, but can&apos;t be read as one. It may be damaged.</source>
        <translation>«&#xa0;%1&#xa0;» ressemble à un certificat, mais ne peut pas être lu comme tel. Il est peut-être endommagé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a private key, not a certificate. Choose the certificate that belongs to it here, and this file as the private key.</source>
        <translation>«&#xa0;%1&#xa0;» contient une clé privée, pas un certificat. Choisissez ici le certificat correspondant, et ce fichier comme clé privée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Only PEM, the text form, is accepted. Take the certificate out with:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</source>
        <translation>«&#xa0;%1&#xa0;» est un conteneur PKCS#12. Seul PEM, la forme texte, est accepté. Extrayez-en le certificat avec&#xa0;:

openssl pkcs12 -in FILE -clcerts -nokeys -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not PEM but binary (DER). Only PEM, the text form, is accepted. Convert it with:

openssl x509 -inform DER -in FILE -out certificate.pem</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas au format PEM, mais binaire (DER). Seul PEM, la forme texte, est accepté. Convertissez-le avec&#xa0;:

openssl x509 -inform DER -in FILE -out certificate.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no PEM certificate: such a file has a line &quot;-----BEGIN CERTIFICATE-----&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un certificat PEM&#xa0;: un tel fichier contient une ligne «&#xa0;-----BEGIN CERTIFICATE-----&#xa0;».</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is encrypted with a pass phrase, which the program can&apos;t give to OpenSSL. Make a copy without one, and keep it where nobody else can read it:

openssl rsa -in FILE -out key.pem</source>
        <translation>La clé privée dans «&#xa0;%1&#xa0;» est chiffrée par une phrase secrète, que le programme ne peut pas transmettre à OpenSSL. Faites-en une copie sans phrase secrète, et gardez-la là où personne d’autre ne peut la lire&#xa0;:

openssl rsa -in FILE -out key.pem</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a certificate, not a private key. Choose the private key that belongs to the certificate.</source>
        <translation>«&#xa0;%1&#xa0;» contient un certificat, pas une clé privée. Choisissez la clé privée qui va avec le certificat.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a PKCS#12 container. Take the private key out with:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</source>
        <translation>«&#xa0;%1&#xa0;» est un conteneur PKCS#12. Extrayez-en la clé privée avec&#xa0;:

openssl pkcs12 -in FILE -nocerts -nodes -out key.pem</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; is not an RSA key. Only RSA keys, with RSA certificates, can be used.</source>
        <translation>La clé privée dans «&#xa0;%1&#xa0;» n’est pas une clé RSA. Seules les clés RSA, avec des certificats RSA, peuvent être utilisées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no private key that can be read. It must be an RSA key in PEM, the text form.</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune clé privée lisible. Il faut une clé RSA au format PEM, la forme texte.</translation>
    </message>
    <message>
        <source>The private key in &quot;%1&quot; does not belong to the certificate &quot;%2&quot;. Choose the key that the certificate was made with; no other one opens what the certificate encrypts.</source>
        <translation>La clé privée dans «&#xa0;%1&#xa0;» ne va pas avec le certificat «&#xa0;%2&#xa0;». Choisissez la clé avec laquelle le certificat a été créé&#xa0;; aucune autre n’ouvre ce que le certificat chiffre.</translation>
    </message>
    <message>
        <source>No certificate is chosen yet. Choose it first: a private key is accepted only with the certificate that it belongs to.</source>
        <translation>Aucun certificat n’est encore choisi. Choisissez-le d’abord&#xa0;: une clé privée n’est acceptée qu’avec le certificat correspondant.</translation>
    </message>
    <message>
        <source>The certificate itself can&apos;t be used any more. </source>
        <translation>Le certificat lui-même n’est plus utilisable. </translation>
    </message>
    <message>
        <source>No password is given. Type one on the Password tab; without a password nothing is backed up.</source>
        <translation>Aucun mot de passe n’est indiqué. Saisissez-en un dans l’onglet «&#xa0;Mot de passe&#xa0;»&#xa0;; sans mot de passe, rien n’est sauvegardé.</translation>
    </message>
    <message>
        <source>The password holds a zero byte (is its file perhaps UTF-16?), and all behind it would be lost. Use a password of ordinary characters, in UTF-8.</source>
        <translation>Le mot de passe contient un octet nul (son fichier serait-il en UTF-16&#xa0;?), et tout ce qui suit serait perdu. Utilisez un mot de passe fait de caractères ordinaires, en UTF-8.</translation>
    </message>
    <message>
        <source>The password holds a line break, and all behind it would be lost. Use one of a single line.</source>
        <translation>Le mot de passe contient un saut de ligne, et tout ce qui suit serait perdu. Utilisez-en un d’une seule ligne.</translation>
    </message>
    <message>
        <source>The password is longer than %1 bytes, and would be cut. Use a shorter one.</source>
        <translation>Le mot de passe dépasse %1 octets, et serait tronqué. Utilisez-en un plus court.</translation>
    </message>
    <message>
        <source>No certificate is chosen. Choose one on the Password tab.</source>
        <translation>Aucun certificat n’est choisi. Choisissez-en un dans l’onglet «&#xa0;Mot de passe&#xa0;».</translation>
    </message>
    <message>
        <source>The key of the certificate &quot;%1&quot; has %2 bits; less than %3 can be broken.</source>
        <translation>La clé du certificat «&#xa0;%1&#xa0;» a %2&#xa0;bits&#xa0;; avec moins de %3, elle peut être cassée.</translation>
    </message>
    <message>
        <source>%1, %2 bits</source>
        <translation>%1, %2 bits</translation>
    </message>
    <message>
        <source>unknown kind</source>
        <translation>type inconnu</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; is not there, or can&apos;t be read. Choose another one on the Password tab.</source>
        <translation>Le certificat « %1 » n’existe pas, ou est illisible. Choisissez-en un autre dans l’onglet « Mot de passe ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is chosen as the certificate, but it is a private key. Choose the certificate that belongs to it on the Password tab.</source>
        <translation>« %1 » est choisi comme certificat, mais c’est une clé privée. Choisissez le certificat correspondant dans l’onglet « Mot de passe ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no certificate in the form that is needed here, which is PEM, a text file. Choose another one on the Password tab.</source>
        <translation>« %1 » n’est pas un certificat sous la forme nécessaire ici : PEM, un fichier texte. Choisissez-en un autre dans l’onglet « Mot de passe ».</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; has a key of another kind than RSA, and only RSA keys can be used here. Choose another one on the Password tab.</source>
        <translation>La clé du certificat « %1 » n’est pas une clé RSA, et seules celles-ci sont utilisables ici. Choisissez un autre certificat dans l’onglet « Mot de passe ».</translation>
    </message>
</context>
<context>
    <name>outlets</name>
    <message>
        <source>Wait...</source>
        <translation>Patientez...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>passwords</name>
    <message>
        <source>Nothing that is encrypted for this certificate can be opened without its private key: make sure that you have it, and a copy in a safe place.</source>
        <translation>Rien de ce qui est chiffré pour ce certificat ne peut être ouvert sans sa clé privée&#xa0;: assurez-vous de l’avoir, ainsi qu’une copie en lieu sûr.</translation>
    </message>
    <message>
        <source>No private key is chosen. </source>
        <translation>Aucune clé privée n’est choisie. </translation>
    </message>
    <message>
        <source>The private key is not where it was. </source>
        <translation>La clé privée n’est plus là où elle était. </translation>
    </message>
    <message>
        <source>Choose a certificate</source>
        <translation>Choisir un certificat</translation>
    </message>
    <message>
        <source>Choose the private key</source>
        <translation>Choisir la clé privée</translation>
    </message>
    <message>
        <source>It is no text, in UTF-8. Another program stored it: choose another account.</source>
        <translation>Ce n’est pas du texte en UTF-8. Un autre programme l’a stocké&#xa0;: choisissez un autre compte.</translation>
    </message>
    <message>
        <source>The password of &quot;%1&quot; was fetched from the keychain.</source>
        <translation>Le mot de passe de «&#xa0;%1&#xa0;» a été lu dans le trousseau.</translation>
    </message>
    <message>
        <source>The keychain holds no password of &quot;%1&quot;. Check the account name; or type the password and store it.</source>
        <translation>Le trousseau ne contient aucun mot de passe pour «&#xa0;%1&#xa0;». Vérifiez le nom du compte&#xa0;; ou saisissez le mot de passe et stockez-le.</translation>
    </message>
    <message>
        <source>What the keychain holds of &quot;%1&quot; is of no use. </source>
        <translation>Ce que le trousseau contient pour «&#xa0;%1&#xa0;» est inutilisable. </translation>
    </message>
    <message>
        <source>Nothing was stored. </source>
        <translation>Rien n’a été stocké. </translation>
    </message>
    <message>
        <source>The password was stored in the keychain for &quot;%1&quot;.</source>
        <translation>Le mot de passe a été stocké dans le trousseau pour «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The keychain holds a password of &quot;%1&quot; already, and it stays as it is. Choose another account name, or remove the old one in your desktop&apos;s password program first.</source>
        <translation>Le trousseau contient déjà un mot de passe pour «&#xa0;%1&#xa0;», et il reste tel quel. Choisissez un autre nom de compte, ou supprimez d’abord l’ancien dans le programme de mots de passe de votre bureau.</translation>
    </message>
    <message>
        <source>The keychain is unlocked.</source>
        <translation>Le trousseau est déverrouillé.</translation>
    </message>
    <message>
        <source>Asking the keychain…</source>
        <translation>Interrogation du trousseau…</translation>
    </message>
</context>
<context>
    <name>plist</name>
    <message>
        <source>declarations within the document are not supported</source>
        <translation>les déclarations à l’intérieur du document ne sont pas acceptées</translation>
    </message>
    <message>
        <source>it holds a tag of more than %1 characters</source>
        <translation>il contient une balise de plus de %1 caractères</translation>
    </message>
    <message>
        <source>%1: it can&apos;t be written: %2</source>
        <translation>%1&#xa0;: écriture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>its links lead in a circle</source>
        <translation>ses liens tournent en rond</translation>
    </message>
    <message>
        <source>the root element is &lt;%1&gt;, not &lt;plist&gt;</source>
        <translation>l’élément racine est &lt;%1&gt;, et non &lt;plist&gt;</translation>
    </message>
    <message>
        <source>the list is empty</source>
        <translation>la liste est vide</translation>
    </message>
    <message>
        <source>the root is &lt;%1&gt;, not a dictionary</source>
        <translation>la racine est &lt;%1&gt;, et non un dictionnaire</translation>
    </message>
    <message>
        <source>something follows the root dictionary</source>
        <translation>quelque chose suit le dictionnaire racine</translation>
    </message>
    <message>
        <source>there is text between the elements</source>
        <translation>il y a du texte entre les éléments</translation>
    </message>
    <message>
        <source>entities are not supported</source>
        <translation>les entités ne sont pas acceptées</translation>
    </message>
    <message>
        <source>its encoding is %1, not UTF-8</source>
        <translation>son encodage est %1, et non UTF-8</translation>
    </message>
    <message>
        <source>the document type is not that of a property list</source>
        <translation>le type de document n’est pas celui d’une liste de propriétés</translation>
    </message>
    <message>
        <source>the attribute %1 is unknown</source>
        <translation>l’attribut %1 est inconnu</translation>
    </message>
    <message>
        <source>version %1 of the format is unknown</source>
        <translation>la version %1 du format est inconnue</translation>
    </message>
    <message>
        <source>the key %1 is there twice</source>
        <translation>la clé %1 y figure deux fois</translation>
    </message>
    <message>
        <source>the key %1 has no value</source>
        <translation>la clé %1 n’a pas de valeur</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands where a key is expected</source>
        <translation>&lt;%1&gt; se trouve là où une clé est attendue</translation>
    </message>
    <message>
        <source>it is nested deeper than %1 levels</source>
        <translation>il est imbriqué sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>the element &lt;%1&gt; is unknown</source>
        <translation>l’élément &lt;%1&gt; est inconnu</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un entier</translation>
    </message>
    <message>
        <source>the integer %1 does not fit into 64 bits</source>
        <translation>l’entier %1 ne tient pas sur 64&#xa0;bits</translation>
    </message>
    <message>
        <source>“%1” is not a real number</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre réel</translation>
    </message>
    <message>
        <source>the data is not Base64</source>
        <translation>les données ne sont pas en Base64</translation>
    </message>
    <message>
        <source>“%1” is not a date like 2001-12-31T23:59:59Z</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une date comme 2001-12-31T23:59:59Z</translation>
    </message>
    <message>
        <source>there is text in &lt;true&gt; or &lt;false&gt;</source>
        <translation>il y a du texte dans &lt;true&gt; ou &lt;false&gt;</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>il dépasse %1&#xa0;Mio</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is a binary property list; only XML ones can be read</source>
        <translation>c’est une liste de propriétés binaire&#xa0;; seules celles en XML peuvent être lues</translation>
    </message>
    <message>
        <source>%1: it is not UTF-8</source>
        <translation>%1&#xa0;: ce n’est pas de l’UTF-8</translation>
    </message>
    <message>
        <source>it can&apos;t be put into XML</source>
        <translation>impossible de l’exprimer en XML</translation>
    </message>
    <message>
        <source>it would be larger than %1 MiB</source>
        <translation>il dépasserait %1&#xa0;Mio</translation>
    </message>
    <message>
        <source>there is nothing to write</source>
        <translation>il n’y a rien à écrire</translation>
    </message>
    <message>
        <source>it has a character that such a file can&apos;t hold (%1)</source>
        <translation>il contient un caractère qu’un tel fichier ne peut pas contenir (%1)</translation>
    </message>
    <message>
        <source>the value under “%2” is nested deeper than %1 levels</source>
        <translation>la valeur de « %2 » est imbriquée sur plus de %1 niveaux</translation>
    </message>
    <message>
        <source>the value under “%1” is a date that the file can&apos;t hold</source>
        <translation>la valeur de « %1 » est une date que le fichier ne peut pas contenir</translation>
    </message>
    <message>
        <source>the value under “%2” has a character that the file can&apos;t hold (%1)</source>
        <translation>la valeur de « %2 » contient un caractère que le fichier ne peut pas contenir (%1)</translation>
    </message>
</context>
<context>
    <name>profiles</name>
    <message>
        <source>A profile needs a name, and none was typed.</source>
        <translation>Un profil a besoin d’un nom, et aucun n’a été saisi.</translation>
    </message>
    <message>
        <source>There is a profile &quot;%1&quot; already. Choose another name.</source>
        <translation>Il y a déjà un profil «&#xa0;%1&#xa0;». Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>There can be no profiles, for their file can&apos;t be read:
%1
Repair it, or move it away, and start the program again.</source>
        <translation>Il ne peut pas y avoir de profils, car leur fichier est illisible&#xa0;:
%1
Réparez-le, ou déplacez-le, puis redémarrez le programme.</translation>
    </message>
    <message>
        <source>No copy could be saved either:
%1</source>
        <translation>Aucune copie n’a pu être enregistrée non plus&#xa0;:
%1</translation>
    </message>
    <message>
        <source>Choose a folder for the copy</source>
        <translation>Choisir un dossier pour la copie</translation>
    </message>
    <message>
        <source>Another window or program has changed the file of the %1 since it was read here, and both of you have changed %2.

Whichever you choose, the other one is kept beside the file. What only one of you has changed is saved in any case.</source>
        <translation>Une autre fenêtre ou un autre programme a modifié le fichier des %1 depuis qu’il a été lu ici, et les modifications des deux côtés portent sur %2.

Quel que soit votre choix, l’autre version est conservée à côté du fichier. Ce qui n’a été modifié que d’un côté est enregistré dans tous les cas.</translation>
    </message>
    <message>
        <source>The %1 can&apos;t be saved, for their file could not be read:
%2

Repair it, or move it away, and start the program again.</source>
        <translation>Impossible d’enregistrer les %1, car leur fichier n’a pas pu être lu&#xa0;:
%2

Réparez-le, ou déplacez-le, puis redémarrez le programme.</translation>
    </message>
    <message>
        <source>Another window or program has changed %1: that is taken over.</source>
        <translation>Une autre fenêtre ou un autre programme a modifié %1&#xa0;: ces modifications sont reprises.</translation>
    </message>
    <message>
        <source>The %1 could not be saved:
%2

What you changed is kept only as long as the program runs. Make room, or make the folder writable, and save again.</source>
        <translation>Impossible d’enregistrer les %1&#xa0;:
%2

Vos modifications ne sont conservées que tant que le programme fonctionne. Libérez de la place, ou rendez le dossier accessible en écriture, puis enregistrez à nouveau.</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>« %1 »</translation>
    </message>
    <message>
        <source>profiles</source>
        <translation>profils</translation>
    </message>
    <message>
        <source>settings</source>
        <translation>réglages</translation>
    </message>
</context>
<context>
    <name>runs</name>
    <message>
        <source>the program was ended in the middle of it</source>
        <translation>le programme a été interrompu pendant son traitement</translation>
    </message>
    <message>
        <source>The program was ended before the run was.</source>
        <translation>Le programme a été interrompu avant la fin de l’opération.</translation>
    </message>
    <message>
        <source>no other name is free for it</source>
        <translation>aucun autre nom n’est libre pour lui</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, and a file of that name is needed for a while. Rename it.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, et un fichier de ce nom est nécessaire pour un moment. Renommez-le.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way and can&apos;t be given another name: %2.</source>
        <translation>«&#xa0;%1&#xa0;» occupe la place et ne peut pas recevoir un autre nom&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Something puts %1 under the name &quot;%2&quot; again and again. Choose a folder that nobody else writes to.</source>
        <translation>Quelque chose remet sans cesse %1 sous le nom «&#xa0;%2&#xa0;». Choisissez un dossier où personne d’autre n’écrit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has been replaced by %2 of somebody else&apos;s. Choose a folder that nobody else writes to.</source>
        <translation>«&#xa0;%1&#xa0;» a été remplacé par %2 appartenant à quelqu’un d’autre. Choisissez un dossier où personne d’autre n’écrit.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be made: %2</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas être créé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: the tool ended with status %2 and did not say why.</source>
        <translation>%1&#xa0;: l’outil s’est terminé avec le code %2, sans dire pourquoi.</translation>
    </message>
    <message>
        <source>%1: the tool said nothing, and did not make &quot;%2&quot;.</source>
        <translation>%1&#xa0;: l’outil n’a rien dit, et n’a pas créé «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>Another run is writing into &quot;%1&quot;, or its tools still are. Wait until it has ended.</source>
        <translation>Une autre opération écrit dans «&#xa0;%1&#xa0;», ou ses outils le font encore. Attendez qu’elle ait pris fin.</translation>
    </message>
    <message>
        <source>Collecting</source>
        <translation>Collecte</translation>
    </message>
    <message>
        <source>Encrypting</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Archivage</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finalisation</translation>
    </message>
    <message>
        <source>Testing</source>
        <translation>Test</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Décompression</translation>
    </message>
    <message>
        <source>Decrypting</source>
        <translation>Déchiffrement</translation>
    </message>
    <message>
        <source>Restoring</source>
        <translation>Restauration</translation>
    </message>
    <message>
        <source>Putting in place</source>
        <translation>Mise en place</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Encore quelques secondes</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>Encore %1&#xa0;s environ</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>Encore %1&#xa0;min environ</translation>
    </message>
    <message>
        <source>About %1 h left</source>
        <translation>Encore %1&#xa0;h environ</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ignoré</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was in the way and is called &quot;%2&quot; now.</source>
        <translation>«&#xa0;%1&#xa0;» occupait la place et s’appelle maintenant «&#xa0;%2&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n more were in the way, and their names begin with &quot;kept-&quot; now.</source>
        <translation>
            <numerusform>%n autre occupait la place&#xa0;; son nom commence maintenant par «&#xa0;kept-&#xa0;».</numerusform>
            <numerusform>%n autres occupaient la place&#xa0;; leurs noms commencent maintenant par «&#xa0;kept-&#xa0;».</numerusform>
        </translation>
    </message>
    <message>
        <source>the folder &quot;%1&quot; can&apos;t be made</source>
        <translation>le dossier «&#xa0;%1&#xa0;» ne peut pas être créé</translation>
    </message>
    <message>
        <source>It can&apos;t be written down what this run does: %1. If it is interrupted, nobody could tell what it leaves from files of your own.</source>
        <translation>Impossible de noter ce que fait cette opération : %1. Ce qu’elle laisserait en cas d’interruption ne pourrait pas être distingué de vos propres fichiers.</translation>
    </message>
    <message>
        <source>The OpenSSL program that is chosen on the Tools tab makes something else of a password than these archives need, so it can&apos;t open them. Choose Quillorent&apos;s own there; the password may be right.</source>
        <translation>Le programme OpenSSL choisi dans l’onglet « Outils » tire du mot de passe autre chose que ce dont ces archives ont besoin, et ne peut donc pas les ouvrir. Choisissez-y celui de Quillorent ; le mot de passe est peut-être bon.</translation>
    </message>
</context>
<context>
    <name>settings</name>
    <message>
        <source>“%1” may not be written, nor moved out of the way: what is changed can&apos;t be saved.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut être ni écrit, ni déplacé&#xa0;: vos modifications ne peuvent pas être enregistrées.</translation>
    </message>
    <message>
        <source>“%1” may not be written by this user. It is kept as “%2”, and a new one with the program&apos;s own settings has taken its place.</source>
        <translation>Cet utilisateur n’a pas le droit d’écrire dans «&#xa0;%1&#xa0;». Ce fichier est conservé sous le nom «&#xa0;%2&#xa0;», et un nouveau, avec les réglages du programme, a pris sa place.</translation>
    </message>
    <message>
        <source>“%1” could not be read when it was saved over. What it held is kept as “%2”.</source>
        <translation>«&#xa0;%1&#xa0;» était illisible au moment d’être remplacé. Son contenu est conservé sous le nom «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>What others had changed in “%1” is kept as “%2”.</source>
        <translation>Ce que d’autres avaient modifié dans «&#xa0;%1&#xa0;» est conservé sous le nom «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>What you had changed in “%1” is kept as “%2”.</source>
        <translation>Ce que vous aviez modifié dans «&#xa0;%1&#xa0;» est conservé sous le nom «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; can&apos;t be made</source>
        <translation>Impossible de créer le dossier « %1 »</translation>
    </message>
    <message>
        <source>“%1” can&apos;t be read, and no copy of it can be kept: so it is not saved over</source>
        <translation>« %1 » est illisible, et aucune copie ne peut en être conservée : il n’est donc pas remplacé</translation>
    </message>
    <message>
        <source>Of “%1” no copy can be kept: so it is not saved over</source>
        <translation>Aucune copie de « %1 » ne peut être conservée : il n’est donc pas remplacé</translation>
    </message>
</context>
<context>
    <name>sync</name>
    <message>
        <source>The list of what is to be synchronised can&apos;t be written to &quot;%1&quot;: %2.</source>
        <translation>La liste de ce qui doit être synchronisé ne peut pas être écrite dans «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>deleted at the destination</source>
        <translation>supprimé à la destination</translation>
    </message>
    <message>
        <source>replaced there, removed here</source>
        <translation>remplacé là-bas, supprimé ici</translation>
    </message>
    <message>
        <source>moved there</source>
        <translation>déplacé là-bas</translation>
    </message>
    <message>
        <source>there already, removed here</source>
        <translation>déjà là-bas, supprimé ici</translation>
    </message>
    <message>
        <source>folder made</source>
        <translation>dossier créé</translation>
    </message>
    <message>
        <source>date or permissions set</source>
        <translation>date ou droits ajustés</translation>
    </message>
    <message>
        <source>Nothing would be copied or deleted.</source>
        <translation>Rien ne serait copié ni supprimé.</translation>
    </message>
    <message>
        <source>%1. %2 would be copied.</source>
        <translation>%1. %2 seraient copiés.</translation>
    </message>
    <message>
        <source>Delete %1 there, remove %2 here?</source>
        <translation>Supprimer %1 là-bas, et %2 ici&#xa0;?</translation>
    </message>
    <message>
        <source>Delete %1 there?</source>
        <translation>Supprimer %1 là-bas&#xa0;?</translation>
    </message>
    <message>
        <source>Remove %1 here?</source>
        <translation>Supprimer %1 ici&#xa0;?</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; shows another key than before; someone may be in its place. Ask who runs it before you connect again.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» présente une autre clé qu’auparavant&#xa0;; quelqu’un a peut-être pris sa place. Renseignez-vous auprès de la personne qui le gère avant de vous connecter à nouveau.</translation>
    </message>
    <message>
        <source>ssh does not know the server &quot;%1&quot; yet. Connect to it once in a terminal (ssh %1), compare the key that it shows, and try again.</source>
        <translation>ssh ne connaît pas encore le serveur «&#xa0;%1&#xa0;». Connectez-vous-y une fois dans un terminal (ssh %1), comparez la clé qu’il présente, puis réessayez.</translation>
    </message>
    <message>
        <source>There is no server of the name &quot;%1&quot;, or this computer is offline. Check the name.</source>
        <translation>Il n’y a pas de serveur nommé «&#xa0;%1&#xa0;», ou cet ordinateur est hors ligne. Vérifiez le nom.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; refuses the connection. Check that its ssh service runs; a port other than 22 belongs into ~/.ssh/config.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» refuse la connexion. Vérifiez que son service ssh fonctionne&#xa0;; un port autre que 22 doit être indiqué dans ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; can&apos;t be reached. Check the network, and that the server is on.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» est injoignable. Vérifiez le réseau, et que le serveur est allumé.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in, since it was sent an empty user name. Fill in the user: then ssh takes the one from ~/.ssh/config, or else your own.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» ne vous a pas laissé entrer, car il a reçu un nom d’utilisateur vide. Remplissez le champ de l’utilisateur&#xa0;: ssh prend alors celui de ~/.ssh/config, ou à défaut le vôtre.</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; did not let you in. Nobody can type a password here: log in by a key that ssh finds without a question (see ssh-agent, ~/.ssh/config).</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» ne vous a pas laissé entrer. Personne ne peut saisir de mot de passe ici&#xa0;: connectez-vous par une clé que ssh trouve sans poser de question (voir ssh-agent, ~/.ssh/config).</translation>
    </message>
    <message>
        <source>The server &quot;%1&quot; has no rsync. Install it there.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» n’a pas rsync. Installez-le là-bas.</translation>
    </message>
    <message>
        <source>rsync does not understand its arguments. Check &quot;rsyncparams&quot; and &quot;rsyncexcludes&quot; in the settings file: both must be there, and each be one option.</source>
        <translation>rsync ne comprend pas ses arguments. Vérifiez &quot;rsyncparams&quot; et &quot;rsyncexcludes&quot; dans le fichier de réglages&#xa0;: les deux doivent y figurer, et chacun ne former qu’une seule option.</translation>
    </message>
    <message>
        <source>The server took the port for the beginning of the folder&apos;s path. Leave the port empty, and put it into ~/.ssh/config.</source>
        <translation>Le serveur a pris le port pour le début du chemin du dossier. Laissez le port vide, et indiquez-le dans ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The folder in which &quot;%2&quot; is to be made does not exist. Connect its disk, or choose another destination.</source>
        <translation>Le dossier dans lequel «&#xa0;%2&#xa0;» doit être créé n’existe pas. Connectez son disque, ou choisissez une autre destination.</translation>
    </message>
    <message>
        <source>The destination is full. Make room there and run it again: what is there is not copied twice.</source>
        <translation>La destination est pleine. Libérez-y de la place et recommencez&#xa0;: ce qui s’y trouve déjà n’est pas recopié.</translation>
    </message>
    <message>
        <source>A file is larger than the destination can take. Choose another disk, or leave the file out.</source>
        <translation>Un fichier est plus grand que ce que la destination accepte. Choisissez un autre disque, ou laissez ce fichier de côté.</translation>
    </message>
    <message>
        <source>The destination &quot;%2&quot; can only be read. Choose another one.</source>
        <translation>La destination «&#xa0;%2&#xa0;» est en lecture seule. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>You may not read some of the files; they are not copied.</source>
        <translation>Vous n’avez pas le droit de lire certains fichiers&#xa0;; ils ne sont pas copiés.</translation>
    </message>
    <message>
        <source>You may not write to the destination &quot;%2&quot;. Choose another one, or have its permissions changed.</source>
        <translation>Vous n’avez pas le droit d’écrire dans la destination «&#xa0;%2&#xa0;». Choisissez-en une autre, ou faites modifier ses droits d’accès.</translation>
    </message>
    <message>
        <source>An entry of the list is not where it was; it is not copied. Remove it from the list, or bring it back.</source>
        <translation>Un élément de la liste n’est plus là où il était&#xa0;; il n’est pas copié. Retirez-le de la liste, ou remettez-le en place.</translation>
    </message>
    <message>
        <source>Files disappeared while they were to be copied. All others are copied; run it again where that matters.</source>
        <translation>Des fichiers ont disparu alors qu’ils devaient être copiés. Tous les autres sont copiés&#xa0;; recommencez si cela importe.</translation>
    </message>
    <message>
        <source>A folder that is gone here could not be deleted at the destination: it holds files that rsync leaves alone.</source>
        <translation>Un dossier disparu d’ici n’a pas pu être supprimé à la destination&#xa0;: il contient des fichiers auxquels rsync ne touche pas.</translation>
    </message>
    <message>
        <source>The destination can&apos;t keep all owners, dates or permissions of the files.</source>
        <translation>La destination ne peut pas conserver tous les propriétaires, dates ou droits d’accès des fichiers.</translation>
    </message>
    <message>
        <source>The connection to &quot;%1&quot; ended early. Run it again: what is there is not copied twice.</source>
        <translation>La connexion à «&#xa0;%1&#xa0;» s’est terminée trop tôt. Recommencez&#xa0;: ce qui s’y trouve déjà n’est pas recopié.</translation>
    </message>
    <message>
        <source>ssh has noted the server&apos;s key, and what it said counts as a failure. Run it once more.</source>
        <translation>ssh a noté la clé du serveur, et son message compte comme un échec. Recommencez une fois.</translation>
    </message>
    <message>
        <source> Nothing was deleted at the destination.</source>
        <translation> Rien n’a été supprimé à la destination.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty, and everything in its copy would be deleted. Is its disk connected?</source>
        <translation>«&#xa0;%1&#xa0;» est vide, et tout ce que contient sa copie serait supprimé. Son disque est-il connecté&#xa0;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not lie under the common folder &quot;%2&quot; as the list is written, and will not be found. Synchronise it from a profile of its own.</source>
        <translation>«&#xa0;%1&#xa0;» ne se trouve pas sous le dossier commun «&#xa0;%2&#xa0;» tel que la liste est écrite, et ne sera pas trouvé. Synchronisez-le avec un profil à part.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one. Choose another destination.</source>
        <translation>La destination se trouve dans «&#xa0;%1&#xa0;»&#xa0;: chaque opération copierait donc les copies de la précédente. Choisissez une autre destination.</translation>
    </message>
    <message>
        <source>Copies what is new or was changed here. Files that are newer at the destination stay as they are.</source>
        <translation>Copie ce qui est nouveau ou a été modifié ici. Les fichiers plus récents à la destination restent tels quels.</translation>
    </message>
    <message>
        <source>Copies every file whose content differs, also over a newer one at the destination. All files are read on both sides, which takes long.</source>
        <translation>Copie chaque fichier dont le contenu diffère, même par-dessus un fichier plus récent à la destination. Tous les fichiers sont lus des deux côtés, ce qui prend du temps.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. And deletes at the destination, inside the listed folders, what is not here: a second run deletes there what the first one moved there, and then it is nowhere.</source>
        <translation>DÉPLACE les fichiers&#xa0;: ils sont supprimés ici une fois qu’ils sont à la destination. Et supprime à la destination, à l’intérieur des dossiers de la liste, ce qui n’est pas ici&#xa0;: une seconde opération supprime là-bas ce que la première y a déplacé, et il n’est alors plus nulle part.</translation>
    </message>
    <message>
        <source>Deletes at the destination, inside the listed folders, everything that is not here any more.</source>
        <translation>Supprime à la destination, à l’intérieur des dossiers de la liste, tout ce qui n’est plus ici.</translation>
    </message>
    <message>
        <source>MOVES the files: they are removed here once they are at the destination. Folders stay, empty.</source>
        <translation>DÉPLACE les fichiers&#xa0;: ils sont supprimés ici une fois qu’ils sont à la destination. Les dossiers restent, vides.</translation>
    </message>
    <message>
        <source>Deletes nothing, neither here nor there.</source>
        <translation>Ne supprime rien, ni ici ni là-bas.</translation>
    </message>
    <message>
        <source>Without a user the server is sent an empty name, which it refuses: fill one in. Which name is used is for ~/.ssh/config to say; otherwise it is your own.</source>
        <translation>Sans utilisateur, le serveur reçoit un nom vide, qu’il refuse&#xa0;: indiquez-en un. C’est ~/.ssh/config qui décide du nom utilisé&#xa0;; à défaut, c’est le vôtre.</translation>
    </message>
    <message>
        <source>The port becomes the beginning of the folder&apos;s path on the server. Leave it empty, and put it into ~/.ssh/config.</source>
        <translation>Le port devient le début du chemin du dossier sur le serveur. Laissez-le vide, et indiquez-le dans ~/.ssh/config.</translation>
    </message>
    <message>
        <source>The folder must exist on the server: a single file would be stored under its name instead.</source>
        <translation>Le dossier doit exister sur le serveur&#xa0;: sinon, un fichier seul serait enregistré sous le nom de ce dossier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will not be found: its path holds that of the common folder &quot;%2&quot; in the wrong place. Synchronise it from a profile of its own.</source>
        <translation>«&#xa0;%1&#xa0;» ne sera pas trouvé&#xa0;: son chemin contient celui du dossier commun «&#xa0;%2&#xa0;» au mauvais endroit. Synchronisez-le avec un profil à part.</translation>
    </message>
    <message>
        <source>The destination lies inside &quot;%1&quot;, so that each run copies the copies of the last one.</source>
        <translation>La destination se trouve dans «&#xa0;%1&#xa0;»&#xa0;: chaque opération copie donc les copies de la précédente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no absolute path. Remove it from the list and add it again.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un chemin absolu. Retirez-le de la liste, puis ajoutez-le à nouveau.</translation>
    </message>
    <message>
        <source>The path &quot;%1&quot; holds a line break, which rsync&apos;s list can&apos;t. Put the folder above it on the list instead.</source>
        <translation>Le chemin «&#xa0;%1&#xa0;» contient un saut de ligne, ce que la liste de rsync ne permet pas. Mettez plutôt dans la liste le dossier qui le contient.</translation>
    </message>
    <message>
        <source>No server is given. Type its name, or switch the remote destination off.</source>
        <translation>Aucun serveur n’est indiqué. Saisissez son nom, ou désactivez la destination sur un serveur.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no server&apos;s name.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de serveur.</translation>
    </message>
    <message>
        <source>The list is empty. Add the files and folders that are to be synchronised.</source>
        <translation>La liste est vide. Ajoutez les fichiers et les dossiers à synchroniser.</translation>
    </message>
    <message>
        <source>No destination is chosen. Choose the folder that the files go to.</source>
        <translation>Aucune destination n’est choisie. Choisissez le dossier où vont les fichiers.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is no absolute path. Choose the folder again.</source>
        <translation>La destination «&#xa0;%1&#xa0;» n’est pas un chemin absolu. Choisissez à nouveau le dossier.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is a file. Choose a folder.</source>
        <translation>La destination «&#xa0;%1&#xa0;» est un fichier. Choisissez un dossier.</translation>
    </message>
    <message>
        <source>The destination &quot;%1&quot; is the folder that the files lie in already. Choose another one.</source>
        <translation>La destination «&#xa0;%1&#xa0;» est le dossier où les fichiers se trouvent déjà. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>The destination folder &quot;%1&quot; can&apos;t be made. Choose one that you may write to.</source>
        <translation>Le dossier de destination «&#xa0;%1&#xa0;» ne peut pas être créé. Choisissez-en un où vous avez le droit d’écrire.</translation>
    </message>
    <message>
        <source>Cancelled before it began.
</source>
        <translation>Annulé avant d’avoir commencé.
</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>rsync&apos;s message is not readable text.</source>
        <translation>Le message de rsync n’est pas un texte lisible.</translation>
    </message>
    <message>
        <source>It ended with status %1 and did not say why; not everything is copied. Run it again.</source>
        <translation>L’outil s’est terminé avec le code %1, sans dire pourquoi&#xa0;; tout n’est pas copié. Recommencez.</translation>
    </message>
    <message>
        <source>Preview cancelled.</source>
        <translation>Aperçu annulé.</translation>
    </message>
    <message>
        <source>Cancelled. What was copied stays; the next run goes on from there.</source>
        <translation>Annulé. Ce qui a été copié reste&#xa0;; la prochaine opération reprend à partir de là.</translation>
    </message>
    <message>
        <source>Failed. %1</source>
        <translation>Échec. %1</translation>
    </message>
    <message>
        <source>Synchronised %1 in %2.</source>
        <translation>Synchronisé&#xa0;: %1 en %2.</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>remplacé</translation>
    </message>
    <message>
        <source>copied</source>
        <translation>copié</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>rsync, the program that copies, reported a problem; its own words follow.</source>
        <translation>rsync, le programme qui copie, a signalé un problème ; voici son message.</translation>
    </message>
    <message>
        <source>Beside &quot;%1&quot; there is a name that differs in upper and lower case only. The destination may take both for one, so that only one of them arrives. Rename one of them.</source>
        <translation>À côté de «&#xa0;%1&#xa0;», il y a un nom qui ne diffère que par les majuscules et les minuscules. La destination peut prendre les deux pour un seul, si bien qu’un seul des deux arrive. Renommez l’un des deux.</translation>
    </message>
</context>
<context>
    <name>synchronisation</name>
    <message>
        <source>Add folders and files to synchronise</source>
        <translation>Ajouter des dossiers et des fichiers à synchroniser</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>Choisir le dossier source</translation>
    </message>
    <message>
        <source>Choose the destination of the synchronisation</source>
        <translation>Choisir la destination de la synchronisation</translation>
    </message>
    <message>
        <source>The profile deletes files, at the destination or here. The window&apos;s preview shows which.</source>
        <translation>Le profil supprime des fichiers, à la destination ou ici. L’aperçu de la fenêtre montre lesquels.</translation>
    </message>
    <message>
        <source>Comparing both sides…</source>
        <translation>Comparaison des deux côtés…</translation>
    </message>
    <message>
        <source>There is more to delete by now. </source>
        <translation>Il y a maintenant davantage à supprimer. </translation>
    </message>
    <message>
        <source>Looking at both sides…</source>
        <translation>Examen des deux côtés…</translation>
    </message>
    <message>
        <source>Synchronising…</source>
        <translation>Synchronisation en cours…</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Durée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>tools</name>
    <message>
        <source>Choose a tool</source>
        <translation>Choisir un outil</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: a name or a password for it holds a zero byte.
</source>
        <translation>Impossible de démarrer «&#xa0;%1&#xa0;»&#xa0;: un nom ou un mot de passe qui lui est destiné contient un octet nul.
</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2 (%3).
</source>
        <translation>«&#xa0;%1&#xa0;» a été arrêté par le signal %2 (%3).
</translation>
    </message>
    <message>
        <source>Can&apos;t start &quot;%1&quot;: %2. Choose the tool&apos;s path on the Tools tab.</source>
        <translation>Impossible de démarrer «&#xa0;%1&#xa0;»&#xa0;: %2. Choisissez le chemin de l’outil dans l’onglet «&#xa0;Outils&#xa0;».</translation>
    </message>
    <message>
        <source>This OpenSSL can&apos;t be used by itself: it makes something else of a password than archives of this program need, and complains of it. Choose Quillorent&apos;s own &quot;openssl&quot;, which uses it.</source>
        <translation>Cet OpenSSL ne peut pas être utilisé seul : il tire du mot de passe autre chose que ce dont les archives de ce programme ont besoin, et s’en plaint. Choisissez l’outil &quot;openssl&quot; de Quillorent, qui l’utilise.</translation>
    </message>
    <message>
        <source>the tool&apos;s message is not readable text</source>
        <translation>le message de l’outil n’est pas un texte lisible</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListModel</name>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>comes with the first volume of its set</source>
        <translation>vient avec le premier volume de sa série</translation>
    </message>
    <message>
        <source>not extracted: its path has &quot;part&quot; and a number, as later volumes have it</source>
        <translation>non extrait&#xa0;: son chemin contient «&#xa0;part&#xa0;» et un numéro, comme celui des volumes qui suivent le premier</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archive</translation>
    </message>
</context>
<context>
    <name>ui::ArchiveListView</name>
    <message>
        <source>Drop archives, or a folder of them, here, or press Add</source>
        <translation>Déposez ici des archives, ou un dossier qui en contient, ou cliquez sur «&#xa0;Ajouter&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ui::BackupList</name>
    <message>
        <source>its first part is missing</source>
        <translation>la première partie manque</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>incomplète</translation>
    </message>
    <message>
        <source>Incomplete or mixed: %1.</source>
        <translation>Incomplète ou mélangée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>What was backed up</source>
        <translation>Ce qui a été sauvegardé</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>ui::BackupOffer</name>
    <message>
        <source>Bac&amp;kups in &quot;%1&quot;: tick what you want back</source>
        <translation>Sauvegardes dans «&#xa0;%1&#xa0;»&#xa0;: coche&amp;z ce que vous voulez restaurer</translation>
    </message>
</context>
<context>
    <name>ui::BackupResult</name>
    <message>
        <source>1 folder</source>
        <translation>1 dossier</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>3 of 4 folders</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>48 GB in 11 min</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Backed up %1</source>
        <translation>Sauvegardé %1</translation>
    </message>
    <message>
        <source>Cancelled %1</source>
        <translation>Annulé %1</translation>
    </message>
    <message>
        <source>backed up by then: %1</source>
        <translation>sauvegardé jusque-là&#xa0;: %1</translation>
    </message>
    <message>
        <source>The backup that began %1 was interrupted</source>
        <translation>La sauvegarde commencée %1 a été interrompue</translation>
    </message>
    <message>
        <source>Backed up %1, but not everything</source>
        <translation>Sauvegardé %1, mais pas en totalité</translation>
    </message>
    <message>
        <source>The backup failed %1</source>
        <translation>La sauvegarde a échoué %1</translation>
    </message>
    <message>
        <source>backed up: %1</source>
        <translation>sauvegardé&#xa0;: %1</translation>
    </message>
    <message>
        <source>What failed: “%1” – %2</source>
        <translation>Ce qui a échoué&#xa0;: «&#xa0;%1&#xa0;» – %2</translation>
    </message>
    <message>
        <source>What to do: %1</source>
        <translation>Que faire&#xa0;: %1</translation>
    </message>
    <message>
        <source>What to do: back up again. The next backup first puts in order what this one left.</source>
        <translation>Que faire&#xa0;: relancer la sauvegarde. La prochaine sauvegarde remet d’abord en ordre ce que celle-ci a laissé.</translation>
    </message>
    <message>
        <source>Left out: “%1” – %2. Connect its disk, or take it off the list.</source>
        <translation>Ignoré&#xa0;: «&#xa0;%1&#xa0;» – %2. Connectez son disque, ou retirez-le de la liste.</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;, which is not encrypted</source>
        <translation>Ce qui est resté&#xa0;: «&#xa0;%1&#xa0;», qui n’est pas chiffré</translation>
    </message>
    <message>
        <source>What was left: &quot;%1&quot;</source>
        <translation>Ce qui est resté&#xa0;: «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” was in the way and is called “%2” now.</source>
        <translation>«&#xa0;%1&#xa0;» occupait la place et s’appelle maintenant «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>What was left: nothing. Archives from earlier backups are as they were.</source>
        <translation>Ce qui est resté&#xa0;: rien. Les archives des sauvegardes précédentes sont inchangées.</translation>
    </message>
    <message>
        <source>What failed, what to do and what was left</source>
        <translation>Ce qui a échoué, ce qu’il faut faire et ce qui est resté</translation>
    </message>
</context>
<context>
    <name>ui::CompressionHint</name>
    <message>
        <source>archives about %1 % smaller</source>
        <translation>archives plus petites d’environ %1&#xa0;%</translation>
    </message>
    <message>
        <source>gains next to nothing here</source>
        <translation>presque aucun gain ici</translation>
    </message>
</context>
<context>
    <name>ui::ContentsModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
</context>
<context>
    <name>ui::ContentsSheet</name>
    <message numerus="yes">
        <source>%n second(s)</source>
        <translation>
            <numerusform>%n seconde</numerusform>
            <numerusform>%n secondes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s)</source>
        <translation>
            <numerusform>%n minute</numerusform>
            <numerusform>%n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>What &quot;%1&quot; holds</source>
        <translation>Contenu de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Nothing is chosen yet: tick files or folders.</source>
        <translation>Rien n’est encore choisi&#xa0;: cochez des fichiers ou des dossiers.</translation>
    </message>
    <message>
        <source>Chosen: %1, %2. It takes about %3, as looking into the archive did: all of it has to be decrypted for that. Nothing of yours is replaced: a file that is there and differs gets a name that begins with &quot;kept-&quot;.</source>
        <translation>Sélection&#xa0;: %1, %2. Il faut environ %3, comme pour examiner l’archive&#xa0;: elle doit être déchiffrée en entier pour cela. Rien de ce qui est à vous n’est remplacé&#xa0;: un fichier qui existe et qui diffère reçoit un nom qui commence par «&#xa0;kept-&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::FirstSteps</name>
    <message>
        <source>Your first backup, in three steps</source>
        <translation>Votre première sauvegarde, en trois étapes</translation>
    </message>
    <message>
        <source>What is to be kept safe?</source>
        <translation>Que faut-il protéger&#xa0;?</translation>
    </message>
    <message>
        <source>Choose the folders that you can&apos;t do without, or drop them here.</source>
        <translation>Choisissez les dossiers dont vous ne pouvez pas vous passer, ou déposez-les ici.</translation>
    </message>
    <message>
        <source>Choose folders…</source>
        <translation>Choisir des dossiers…</translation>
    </message>
    <message>
        <source>Where to?</source>
        <translation>À quel endroit&#xa0;?</translation>
    </message>
    <message>
        <source>Choose a folder on another disk: one that breaks or is stolen takes all with it.</source>
        <translation>Choisissez un dossier sur un autre disque&#xa0;: un disque qui tombe en panne ou qui est volé emporte tout.</translation>
    </message>
    <message>
        <source>Choose a place…</source>
        <translation>Choisir un endroit…</translation>
    </message>
    <message>
        <source>What locks it?</source>
        <translation>Comment la verrouiller&#xa0;?</translation>
    </message>
    <message>
        <source>Think of a password. Without it nobody can open the backup, you neither: write it down in a safe place.</source>
        <translation>Trouvez un mot de passe. Sans lui, personne ne peut ouvrir la sauvegarde, pas même vous&#xa0;: notez-le en lieu sûr.</translation>
    </message>
    <message>
        <source>Set a password…</source>
        <translation>Définir un mot de passe…</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Skip: %1</source>
        <translation>Passer&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ui::FolderListModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Last backed up</source>
        <translation>Dernière sauvegarde</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>neither file nor folder</source>
        <translation>ni fichier ni dossier</translation>
    </message>
    <message>
        <source>only a link</source>
        <translation>un simple lien</translation>
    </message>
    <message>
        <source>holds the destination</source>
        <translation>contient la destination</translation>
    </message>
    <message>
        <source>Neither a file nor a folder, and left out by a backup. Remove it.</source>
        <translation>Ni fichier ni dossier, et ignoré par une sauvegarde. Retirez-le.</translation>
    </message>
    <message>
        <source>A link to another place: only the link itself would be backed up. Add the folder that it leads to.</source>
        <translation>Un lien vers un autre endroit&#xa0;: seul le lien lui-même serait sauvegardé. Ajoutez le dossier auquel il mène.</translation>
    </message>
    <message>
        <source>The archives go into this folder, so each would hold the ones before it. Choose another destination.</source>
        <translation>Les archives vont dans ce dossier&#xa0;: chacune contiendrait donc les précédentes. Choisissez une autre destination.</translation>
    </message>
    <message>
        <source>…</source>
        <comment>a size that is being measured</comment>
        <translation>…</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Not found, and left out. Connect its disk, or remove it.</source>
        <translation>Introuvable, et ignoré. Connectez son disque, ou retirez-le.</translation>
    </message>
</context>
<context>
    <name>ui::FolderListView</name>
    <message>
        <source>Drop folders here, or press Add</source>
        <translation>Déposez des dossiers ici, ou cliquez sur «&#xa0;Ajouter&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ui::FoldersPage</name>
    <message>
        <source>not a size</source>
        <translation>pas une taille</translation>
    </message>
    <message>
        <source>700 MB – a CD</source>
        <translation>700&#xa0;Mo – un CD</translation>
    </message>
    <message>
        <source>4.7 GB – a DVD</source>
        <translation>4,7&#xa0;Go – un DVD</translation>
    </message>
    <message>
        <source>25 GB – a Blu-ray disc</source>
        <translation>25&#xa0;Go – un disque Blu-ray</translation>
    </message>
    <message>
        <source>None – one file an archive</source>
        <translation>Aucune – un fichier par archive</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>Only %1 free, and a backup needs about %2 while it works</source>
        <translation>Seulement %1 libres, et une sauvegarde a besoin d’environ %2 pour travailler</translation>
    </message>
    <message>
        <source>%1 free; a backup needs about %2 while it works</source>
        <translation>%1 libres&#xa0;; une sauvegarde a besoin d’environ %2 pour travailler</translation>
    </message>
    <message>
        <source>%1 – it opens the archives that are there</source>
        <translation>%1 – ouvre les archives présentes</translation>
    </message>
    <message>
        <source>%1 – it does not open the archives that are there</source>
        <translation>%1 – n’ouvre pas les archives présentes</translation>
    </message>
    <message>
        <source>in files of %1</source>
        <translation>en fichiers de %1</translation>
    </message>
    <message>
        <source>one file a folder</source>
        <translation>un fichier par dossier</translation>
    </message>
    <message>
        <source>made smaller</source>
        <translation>de taille réduite</translation>
    </message>
    <message>
        <source>dated like the newest file</source>
        <translation>datées comme le fichier le plus récent</translation>
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
        <translation>Aller à la liste</translation>
    </message>
    <message>
        <source>Choose the place</source>
        <translation>Choisir l’endroit</translation>
    </message>
    <message>
        <source>Go to the password</source>
        <translation>Aller au mot de passe</translation>
    </message>
    <message>
        <source>Go to the certificate</source>
        <translation>Aller au certificat</translation>
    </message>
    <message>
        <source>Go to the size</source>
        <translation>Aller à la taille</translation>
    </message>
    <message>
        <source>Go to the tools</source>
        <translation>Aller aux outils</translation>
    </message>
    <message>
        <source>Still missing for a backup:</source>
        <translation>Il manque encore pour une sauvegarde&#xa0;:</translation>
    </message>
</context>
<context>
    <name>ui::LevelBar</name>
    <message>
        <source>%1 of %2 tools are in order</source>
        <translation>Outils en ordre&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>No tools checked</source>
        <translation>Aucun outil contrôlé</translation>
    </message>
</context>
<context>
    <name>ui::PathListView</name>
    <message>
        <source>Let go to add to the list</source>
        <translation>Relâchez pour ajouter à la liste</translation>
    </message>
</context>
<context>
    <name>ui::PreviewTableView</name>
    <message>
        <source>What happens</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
</context>
<context>
    <name>ui::ProgressFigures</name>
    <message>
        <source>What</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Étape</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fait</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>Durée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ui::RemovalUndo</name>
    <message>
        <source>Undo removing from the list</source>
        <translation>Annuler le retrait de la liste</translation>
    </message>
    <message>
        <source>“%1” is off the list.</source>
        <translation>«&#xa0;%1&#xa0;» est retiré de la liste.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries are off the list.</source>
        <translation>
            <numerusform>%n élément est retiré de la liste.</numerusform>
            <numerusform>%n éléments sont retirés de la liste.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ui::RunNotices</name>
    <message>
        <source>Files restored</source>
        <translation>Fichiers restaurés</translation>
    </message>
    <message>
        <source>Restoring failed</source>
        <translation>La restauration a échoué</translation>
    </message>
    <message>
        <source>Folders synchronised</source>
        <translation>Dossiers synchronisés</translation>
    </message>
    <message>
        <source>The synchronisation failed</source>
        <translation>La synchronisation a échoué</translation>
    </message>
    <message>
        <source>Backup finished</source>
        <translation>Sauvegarde terminée</translation>
    </message>
    <message>
        <source>The backup failed</source>
        <translation>La sauvegarde a échoué</translation>
    </message>
    <message>
        <source>Archive looked into</source>
        <translation>Archive examinée</translation>
    </message>
    <message>
        <source>The archive can&apos;t be looked into</source>
        <translation>L’archive n’a pas pu être examinée</translation>
    </message>
</context>
<context>
    <name>ui::SizeEdit</name>
    <message>
        <source>%1 %2B</source>
        <translation>%1 %2o</translation>
    </message>
</context>
<context>
    <name>ui::StepperButtons</name>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableModel</name>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>makes and opens archives</source>
        <translation>crée et ouvre les archives</translation>
    </message>
    <message>
        <source>encrypts and decrypts</source>
        <translation>chiffre et déchiffre</translation>
    </message>
    <message>
        <source>copies what has changed</source>
        <translation>copie ce qui a changé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>contrôle…</translation>
    </message>
    <message>
        <source>right tool</source>
        <translation>bon outil</translation>
    </message>
    <message>
        <source>not usable</source>
        <translation>inutilisable</translation>
    </message>
    <message>
        <source>The file is missing, can&apos;t be run, or is another program.</source>
        <translation>Le fichier manque, ne peut pas être exécuté, ou est un autre programme.</translation>
    </message>
</context>
<context>
    <name>ui::ToolTableView</name>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose the file of %1</source>
        <translation>Choisir le fichier de %1</translation>
    </message>
</context>
<context>
    <name>ui::UnsavedChanges</name>
    <message>
        <source>All changes saved</source>
        <translation>Tout est enregistré</translation>
    </message>
    <message>
        <source>Changes are saved when you quit</source>
        <translation>Modifications enregistrées en quittant</translation>
    </message>
    <message>
        <source>Profiles and settings not saved yet</source>
        <translation>Profils et réglages pas encore enregistrés</translation>
    </message>
    <message>
        <source>Profiles not saved yet</source>
        <translation>Profils pas encore enregistrés</translation>
    </message>
    <message>
        <source>Settings not saved yet</source>
        <translation>Réglages pas encore enregistrés</translation>
    </message>
    <message>
        <source>Save changes?</source>
        <translation>Enregistrer les modifications&#xa0;?</translation>
    </message>
    <message>
        <source>There are changes that are not saved.</source>
        <translation>Il y a des modifications non enregistrées.</translation>
    </message>
    <message>
        <source>Without saving they are lost when the program ends.</source>
        <translation>Sans enregistrement, elles sont perdues à la fin du programme.</translation>
    </message>
</context>
<context>
    <name>updates</name>
    <message>
        <source>Version %1 is there. You have version %2.</source>
        <translation>La version %1 est disponible. Vous avez la version %2.</translation>
    </message>
    <message>
        <source>it is no RSS feed</source>
        <translation>ce n’est pas un flux RSS</translation>
    </message>
</context>
</TS>
