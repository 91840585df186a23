<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>pdekit::LoadingTexts</name>
    <message>
        <source>the program ended while this plug-in was starting; it is tried again the next time</source>
        <translation>le programme s’est arrêté pendant le démarrage de ce module ; il sera essayé de nouveau la prochaine fois</translation>
    </message>
    <message>
        <source>the program ended while this plug-in was starting, and again the next time; it is tried again when the bundle has changed</source>
        <translation>le programme s’est arrêté pendant le démarrage de ce module, et encore la fois suivante ; il sera essayé de nouveau quand le module aura changé</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>son code ne peut pas être chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>its code is not what its metadata says</source>
        <translation>son code n’est pas ce que disent ses métadonnées</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>il n’a pas de classe principale %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>il ne peut pas fonctionner sur ce système</translation>
    </message>
    <message>
        <source>it failed while it was starting: %1</source>
        <translation>il a échoué au démarrage : %1</translation>
    </message>
    <message>
        <source>it failed while it was starting</source>
        <translation>il a échoué au démarrage</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La description de l’imprimante demande le module %1, qui n’est pas installé. L’impression fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The plug-in %1 is used in place of %2.</source>
        <translation>Le module %1 est utilisé à la place de %2.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Le module %1 n’est pas utilisé&#xa0;: %2. L’impression fonctionne sans lui. Mettez-le à jour ou supprimez-le.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 est illisible</translation>
    </message>
    <message>
        <source>%1 belongs to somebody else</source>
        <translation>%1 appartient à quelqu’un d’autre</translation>
    </message>
    <message>
        <source>everybody may write to %1</source>
        <translation>tout le monde peut écrire dans %1</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>il est conçu pour une autre interface de volets (%1)</translation>
    </message>
    <message>
        <source>it is made for a later version of the panel interface (%1)</source>
        <translation>il est conçu pour une version ultérieure de l’interface de volets (%1)</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>il n’a pas de fichier %1</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>son code n’est pas un module que cette version de Qt peut charger</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>ses métadonnées n’indiquent aucune classe principale</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>il ne fournit pas de volets d’imprimante</translation>
    </message>
    <message>
        <source>another program has been waiting for this plug-in for a minute or more</source>
        <translation>un autre programme attend ce module depuis une minute ou plus</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::AmountLabel</name>
    <message>
        <source>No page is chosen</source>
        <translation>Aucune page choisie</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Comptage…</translation>
    </message>
    <message>
        <source>Amount not known</source>
        <translation>Quantité inconnue</translation>
    </message>
    <message>
        <source>This is an unusual amount: %1.</source>
        <translation>C’est une quantité inhabituelle : %1.</translation>
    </message>
    <message numerus="yes">
        <source>Print %n Label(s)</source>
        <translation>
            <numerusform>Imprimer %n étiquette</numerusform>
            <numerusform>Imprimer %n étiquettes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Print %n Sheet(s)</source>
        <translation>
            <numerusform>Imprimer %n feuille</numerusform>
            <numerusform>Imprimer %n feuilles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ChoiceModel</name>
    <message>
        <source>Custom…</source>
        <comment>a choice that opens fields for a value of one&apos;s own</comment>
        <translation>Personnalisé…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ConflictNotice</name>
    <message>
        <source>Re&amp;solve</source>
        <translation>Ré&amp;soudre</translation>
    </message>
    <message>
        <source>Resolve: %1</source>
        <comment>the button, and what it changes</comment>
        <translation>Résoudre : %1</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Choisissez autre chose pour l’une d’elles.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomFields</name>
    <message>
        <source>%1:</source>
        <comment>name of a value</comment>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>name of a value, and what is wrong with it</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::CustomSizeSheet</name>
    <message>
        <source>Custom Size</source>
        <translation>Format personnalisé</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nouveau format</translation>
    </message>
    <message>
        <source>Remem&amp;bered:</source>
        <comment>page sizes with names</comment>
        <translation>Mémo&amp;risés :</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Reti&amp;rer</translation>
    </message>
    <message>
        <source>To remember it</source>
        <translation>Pour le mémoriser</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>N&amp;om :</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobPage</name>
    <message>
        <source>Title:</source>
        <translation>Titre :</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Write pages as 1-3,7</source>
        <translation>Écrivez les pages ainsi : 1-3,7</translation>
    </message>
    <message>
        <source>Pages:</source>
        <translation>Pages :</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>Impaires et paires</translation>
    </message>
    <message>
        <source>Odd only</source>
        <translation>Impaires seulement</translation>
    </message>
    <message>
        <source>Even only</source>
        <translation>Paires seulement</translation>
    </message>
    <message>
        <source>Of these:</source>
        <comment>of the chosen pages, the odd and even ones</comment>
        <translation>Parmi elles :</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page d’abord</translation>
    </message>
    <message>
        <source>Copies one after the other</source>
        <translation>Copies l’une après l’autre</translation>
    </message>
    <message>
        <source>1, 2, 3, 1, 2, 3 in place of 1, 1, 2, 2, 3, 3</source>
        <translation>1, 2, 3, 1, 2, 3 au lieu de 1, 1, 2, 2, 3, 3</translation>
    </message>
    <message>
        <source>1 is the lowest, 100 the highest</source>
        <translation>1 est la plus basse, 100 la plus haute</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Priorité :</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Tout de suite</translation>
    </message>
    <message>
        <source>When it is released</source>
        <translation>Quand elle sera libérée</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>De jour</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>Le soir</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>La nuit</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>Pendant la deuxième équipe</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>Pendant la troisième équipe</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>Le week-end</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>À une heure donnée</translation>
    </message>
    <message>
        <source>Time of printing</source>
        <translation>Heure d’impression</translation>
    </message>
    <message>
        <source>Print it:</source>
        <comment>when the job is printed</comment>
        <translation>Imprimer :</translation>
    </message>
    <message>
        <source>Billing:</source>
        <translation>Facturation :</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::JobRow</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>The job goes on without this window</source>
        <translation>La tâche continue sans cette fenêtre</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Shrink when too large</source>
        <translation>Réduire si trop grand</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Ajuster au ruban</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Remplir le ruban, couper le reste</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Taille d’origine</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Grand côté le long du ruban</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Le long du ruban</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>En travers du ruban</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Le long du ruban, à l’envers</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>En travers du ruban, à l’envers</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Le long du ruban&#xa0;:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>En travers du ruban&#xa0;:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape or paper</comment>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>Adapter au papier</translation>
    </message>
    <message>
        <source>Fill the paper, cut off the rest</source>
        <translation>Remplir le papier, couper le reste</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape or paper</comment>
        <translation>Sens :</translation>
    </message>
    <message>
        <source>As it fits best</source>
        <translation>Au mieux</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Turned to the left</source>
        <translation>Tournée à gauche</translation>
    </message>
    <message>
        <source>Turned to the right</source>
        <translation>Tournée à droite</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>À l’envers</translation>
    </message>
    <message>
        <source>Pages on a label:</source>
        <translation>Pages par étiquette :</translation>
    </message>
    <message>
        <source>Pages on a sheet:</source>
        <translation>Pages par feuille :</translation>
    </message>
    <message>
        <source>Their order:</source>
        <comment>of the pages on a label or sheet</comment>
        <translation>Leur ordre :</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>De gauche à droite, puis vers le bas</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>De droite à gauche, puis vers le bas</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Vers le bas, puis de gauche à droite</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Vers le bas, puis de droite à gauche</translation>
    </message>
    <message>
        <source>Frame:</source>
        <comment>around each of several pages on a sheet</comment>
        <translation>Cadre :</translation>
    </message>
    <message>
        <source>None</source>
        <comment>no frame</comment>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Single line</source>
        <translation>Ligne simple</translation>
    </message>
    <message>
        <source>Double line</source>
        <translation>Ligne double</translation>
    </message>
    <message>
        <source>This is about several pages on one</source>
        <translation>Concerne plusieurs pages sur une seule</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::NoticesArea</name>
    <message>
        <source>Notices</source>
        <translation>Avis</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>Installed in the printer</source>
        <translation>Installé dans l’imprimante</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>Le module %1 n’a pas pu créer son volet. L’impression fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» de %2 n’a pas de vue. Ses valeurs sont imprimées telles qu’elles sont définies.</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it.</source>
        <translation>Le module %1 n’est pas utilisé : %2. L’impression fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The plug-in %1</source>
        <translation>Le module %1</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2</source>
        <translation>Le volet « %1 » de %2</translation>
    </message>
    <message>
        <source>The plug-in %1 sent an option that no job can carry, which was left out: %2.</source>
        <translation>Le module %1 a envoyé une option qu’aucune tâche ne peut contenir ; elle a été omise : %2.</translation>
    </message>
    <message>
        <source>Panels change %1 without end (%2): it is printed as it stands.</source>
        <translation>Des volets changent %1 sans fin (%2) : l’impression se fait avec la valeur actuelle.</translation>
    </message>
    <message>
        <source>The plug-in %1 sends %2=%3, which the printer&apos;s description does not know.</source>
        <translation>Le module %1 envoie %2=%3, que la description de l’imprimante ne connaît pas.</translation>
    </message>
    <message>
        <source>%1 could not hand over its values</source>
        <translation>%1 n’a pas pu transmettre ses valeurs</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>what failed, why</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 could not restore its values</source>
        <translation>%1 n’a pas pu rétablir ses valeurs</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PaperMenu</name>
    <message>
        <source>%1 × %2</source>
        <comment>width and height of a page</comment>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>The printer&apos;s description names no paper.</source>
        <translation>La description de l’imprimante ne nomme aucun papier.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a size&apos;s name and its measures</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Custom…</source>
        <comment>opens a sheet for a page size of one&apos;s own</comment>
        <translation>Personnalisé…</translation>
    </message>
    <message>
        <source>Custom (%1)</source>
        <comment>a page size of one&apos;s own</comment>
        <translation>Personnalisé (%1)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>The print server %1 wants to know who prints.</source>
        <translation>Le serveur d’impression %1 veut savoir qui imprime.</translation>
    </message>
    <message>
        <source>That was not accepted.</source>
        <translation>Cela n’a pas été accepté.</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetNameDialog</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>The preset %1 will be replaced.</source>
        <translation>Le préréglage %1 sera remplacé.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Il existe déjà un préréglage %1.</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot;</source>
        <translation>Prendre « %1 »</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PresetRow</name>
    <message>
        <source>Printer&apos;s Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>As Last Time</source>
        <translation>Comme la dernière fois</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>Pré&amp;réglage :</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>Enregistrer, renommer ou supprimer des préréglages</translation>
    </message>
    <message>
        <source>&amp;Save as…</source>
        <translation>&amp;Enregistrer sous…</translation>
    </message>
    <message>
        <source>Save &amp;over</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>Reno&amp;mmer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Make default</source>
        <translation>Utiliser par &amp;défaut</translation>
    </message>
    <message>
        <source>Print with it when no printer is named</source>
        <translation>Imprimer avec lui si aucune imprimante n’est indiquée</translation>
    </message>
    <message>
        <source>Presets are kept for a print queue, and here is none.</source>
        <translation>Les préréglages appartiennent à une file d’impression, et il n’y en a pas ici.</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
    <message>
        <source>There is no preset %1 any more.</source>
        <translation>Le préréglage %1 n’existe plus.</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renommer le préréglage</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset %1? Other programs have it, too, and will lose it.</source>
        <translation>Supprimer le préréglage %1 ? D’autres programmes l’ont aussi et le perdront.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Étiquette précédente</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Étiquette suivante</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Étiquette %1 sur %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Une partie de la page est coupée.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Cette page est vide.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>L’encre de cette couleur se voit mal sur ce ruban.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n feuille</numerusform>
            <numerusform>%n feuilles</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 de ruban</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n étiquette</numerusform>
            <numerusform>%n étiquettes</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Pas d’aperçu : %1</translation>
    </message>
    <message>
        <source>The program&apos;s pages come later, laid out for this size.</source>
        <translation>Les pages du programme viennent ensuite, mises en page pour ce format.</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>&amp;Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Ruban&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Revenir aux valeurs présentes à l’ouverture de la fenêtre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimer</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Ce volet n’a pas de vue.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Ajuster la longueur</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Donner au ruban la longueur qu’exige le contenu, avec les deux marges</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Garder ajustée</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Rien n’est dessiné sur le document&#xa0;: le ruban garde sa longueur.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>Le document demande plus de ruban que l’imprimante n’en prend&#xa0;: il est réduit.</translation>
    </message>
    <message>
        <source>Printer Options</source>
        <translation>Options de l’imprimante</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>Sho&amp;w Command…</source>
        <translation>Afficher la c&amp;ommande…</translation>
    </message>
    <message>
        <source>The same job as a command for a shell</source>
        <translation>La même tâche comme commande d’interpréteur</translation>
    </message>
    <message>
        <source>Choose something else for one of them.</source>
        <translation>Choisissez autre chose pour l’une d’elles.</translation>
    </message>
    <message>
        <source>Change and &amp;Print</source>
        <translation>Modifier et im&amp;primer</translation>
    </message>
    <message>
        <source>Print All the &amp;Same</source>
        <translation>Imprimer &amp;quand même</translation>
    </message>
    <message>
        <source>The tape length was set to %1 by hand. Replace it by the length that fits?</source>
        <translation>La longueur du ruban a été réglée à la main sur %1. La remplacer par la longueur qui convient ?</translation>
    </message>
    <message>
        <source>Setti&amp;ngs:</source>
        <comment>which page of them</comment>
        <translation>Réglage&amp;s :</translation>
    </message>
    <message>
        <source>The job is being printed.</source>
        <translation>La tâche est en cours d’impression.</translation>
    </message>
    <message>
        <source>The printer is still being connected.</source>
        <translation>La connexion à l’imprimante est encore en cours.</translation>
    </message>
    <message>
        <source>Choose a printer first.</source>
        <translation>Choisissez d’abord une imprimante.</translation>
    </message>
    <message>
        <source>The printer offers no choice here.</source>
        <translation>L’imprimante n’offre pas de choix ici.</translation>
    </message>
    <message>
        <source>Not available with this printer, this tape or the other settings.</source>
        <translation>Non disponible avec cette imprimante, ce ruban ou les autres réglages.</translation>
    </message>
    <message>
        <source>&amp;Load Anew</source>
        <translation>Rec&amp;harger</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Choisissez une imprimante</translation>
    </message>
    <message>
        <source>The printer is not there any more.</source>
        <translation>L’imprimante n’est plus là.</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Annuler la tâche</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Help for this page of the settings</source>
        <translation>Aide sur cette page de réglages</translation>
    </message>
    <message>
        <source>%1 – connecting…</source>
        <translation>%1 – connexion…</translation>
    </message>
    <message>
        <source>%1 does not accept the settings. Nothing was printed.</source>
        <translation>%1 n’accepte pas les réglages. Rien n’a été imprimé.</translation>
    </message>
    <message>
        <source>The unit holds for this window alone: %1 cannot be written.</source>
        <translation>L’unité ne vaut que pour cette fenêtre : %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>This printer has no description: what is printed is handed to it as it is. So there is no preview, and nobody knows how many pages come out.</source>
        <translation>Cette imprimante n’a pas de description : ce qui est imprimé lui est remis tel quel. Il n’y a donc pas d’aperçu, et nul ne sait combien de pages sortiront.</translation>
    </message>
    <message>
        <source>There is no preview: the printer&apos;s description names no paper.</source>
        <translation>Pas d’aperçu : la description de l’imprimante n’indique aucun papier.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer, the tape chosen or another setting there does not offer it.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>« %1 » est désactivé par « %2 » : cette imprimante, le ruban choisi ou un autre réglage ne le propose pas.</translation>
    </message>
    <message>
        <source>“%1” is switched off by “%2”: this printer offers nothing to choose there.</source>
        <comment>a control, and the page of settings that it stands on</comment>
        <translation>« %1 » est désactivé par « %2 » : cette imprimante n’y propose aucun choix.</translation>
    </message>
    <message>
        <source>“%1” does not go with what is set for “%2”.</source>
        <comment>two controls</comment>
        <translation>« %1 » ne va pas avec le réglage de « %2 ».</translation>
    </message>
    <message>
        <source>&amp;Ask Again</source>
        <translation>&amp;Demander à nouveau</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintRun</name>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Sending…</source>
        <translation>Envoi…</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterDesk</name>
    <message>
        <source>The print server does not answer. Its printers come back when it does.</source>
        <translation>Le serveur d’impression ne répond pas. Ses imprimantes reviendront avec lui.</translation>
    </message>
    <message>
        <source>There is no default printer. Choose a printer.</source>
        <translation>Il n’y a pas d’imprimante par défaut. Choisissez une imprimante.</translation>
    </message>
    <message>
        <source>The printer %1 is not there any more. Choose another, or wait until it is back: what you have set is kept.</source>
        <translation>L’imprimante %1 n’est plus là. Choisissez-en une autre ou attendez son retour : vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>The description of the printer %1 has changed on the print server. Load it anew before you print.</source>
        <translation>La description de l’imprimante %1 a changé sur le serveur. Rechargez-la avant d’imprimer.</translation>
    </message>
    <message>
        <source>The printer %1, which was used last, is not there any more.</source>
        <translation>L’imprimante %1, utilisée la dernière fois, n’est plus là.</translation>
    </message>
    <message>
        <source>The printer %1 is taken in its place.</source>
        <translation>L’imprimante %1 est prise à sa place.</translation>
    </message>
    <message>
        <source>The printer %1 was changed on the print server, and without a password its description was not looked at. Ask again before you print.</source>
        <translation>L’imprimante %1 a été modifiée sur le serveur d’impression et, sans mot de passe, sa description n’a pas été consultée. Redemandez avant d’imprimer.</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterModel</name>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (aucune file d’impression)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (par défaut)</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>n’est plus là</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Emplacement : %1</translation>
    </message>
    <message>
        <source>A class: whichever of its printers is free prints the job.</source>
        <translation>Une classe : l’imprimante libre imprime la tâche.</translation>
    </message>
    <message>
        <source>Found on the network</source>
        <translation>Trouvée sur le réseau</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>a printer and its state</comment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrinterPopUp</name>
    <message>
        <source>Search by name, description or location</source>
        <translation>Chercher par nom, description ou emplacement</translation>
    </message>
    <message>
        <source>Search printers</source>
        <translation>Chercher des imprimantes</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SaveButton</name>
    <message>
        <source>labels</source>
        <comment>the name of a file</comment>
        <translation>etiquettes</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the job in a file in place of printing it</source>
        <translation>Enregistrer la tâche dans un fichier au lieu de l’imprimer</translation>
    </message>
    <message>
        <source>Save as &amp;PDF…</source>
        <translation>Enregistrer en &amp;PDF…</translation>
    </message>
    <message>
        <source>Save Printer &amp;Data…</source>
        <translation>Enregistrer les &amp;données d’impression…</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>Save Printer Data</source>
        <translation>Enregistrer les données d’impression</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Printer data (*.prn)</source>
        <translation>Données d’impression (*.prn)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::ShowCommand</name>
    <message>
        <source>Commands for a Shell</source>
        <translation>Commandes d’interpréteur</translation>
    </message>
    <message>
        <source>The same job by &amp;tapeprint:</source>
        <translation>La même tâche avec &amp;tapeprint :</translation>
    </message>
    <message>
        <source>The same options by &amp;lp, which lays nothing out:</source>
        <translation>Les mêmes options avec &amp;lp, qui ne met rien en page :</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the command of %1</source>
        <translation>Copier la commande de %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Aperçu du ruban</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Longueur %1, largeur %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Aperçu du papier</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1 ; une partie de la page est coupée</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::UnitButton</name>
    <message>
        <source>The unit of the lengths shown here</source>
        <translation>L’unité des longueurs affichées ici</translation>
    </message>
    <message>
        <source>&amp;Millimetres</source>
        <translation>&amp;Millimètres</translation>
    </message>
    <message>
        <source>&amp;Inches</source>
        <translation>&amp;Pouces</translation>
    </message>
    <message>
        <source>Unit of length</source>
        <translation>Unité de longueur</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pouces</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimètres</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>sans en indiquer la raison</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>Les filtres ne peuvent pas être lancés (%1). Vérifiez que CUPS est entièrement installé.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>Les filtres de %1 n’ont pas pu imprimer le document %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Le programme cupsfilter est introuvable. Installez le paquet cups.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>Les filtres de %1 n’ont rien produit à partir du document. Vérifiez qu’il contient des pages à imprimer.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Le document %1 ne peut pas être lu (%2). Indiquez un fichier lisible.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>Le serveur d’impression a refusé le document %1 (%2). Vérifiez que la file imprime ce type de document.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>La file d’impression %1 est injoignable (%2). La commande lpstat -e donne les files existantes.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 ne figure pas parmi les choix du fichier PPD de l’imprimante.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>L’option %1 n’atteint jamais le filtre de l’imprimante, car le serveur d’impression la prend pour son propre attribut %2. Donnez-lui un autre nom dans le fichier PPD.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Le fichier PPD %1 ne peut pas être lu (%2). Indiquez un fichier PPD lisible.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>Le fichier PPD %1 n’est pas valide, ligne %2&#xa0;: %3. Corrigez le fichier ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>Le serveur d’impression ne fournit pas le fichier PPD de la file %1 (%2). Vérifiez que la file est configurée.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>de la file %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>suspendue</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>en cours d’impression</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>interrompue</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>abandonnée</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminée</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoyée</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>Les données d’impression sont dans %1 (%2 octets).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Tâche %1-%2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 est endommagé : aucune page n’est lisible.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 n’est pas un document PDF.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 est protégé par un mot de passe : enregistrez-le sans mot de passe et imprimez cette copie.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 n’a aucune page.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» maintient %2 dans ses limites et ses pas&#xa0;: au lieu de %3, la tâche porte %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 ne figure pas parmi les choix du fichier PPD de l’imprimante&#xa0;: la tâche porte %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Les filtres de l’imprimante s’exécutent sans confinement, car bubblewrap est absent : installez le paquet bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Les filtres de l’imprimante s’exécutent sans confinement, car cette machine ne le permet pas (%1) : autorisez les utilisateurs à créer des espaces de noms.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>Les filtres n’ont pas pu faire de pages du document %1 : %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>L’image %1 (%2 x %3 points) ne peut pas être décompressée (%4). Réduisez-la ou imprimez-la en PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>L’image %1 est endommagée (%2). Recréez-la ou indiquez-en une autre.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>Le document %1 est protégé par un mot de passe. Enregistrez-le sans mot de passe et imprimez celui-ci.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>Le document %1 est endommagé (%2). Recréez-le ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>Le document %1 n’a aucune page. Indiquez-en un qui contienne quelque chose à imprimer.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Les étiquettes ne peuvent pas être mises en page (%1). Vérifiez que le document est complet et qu’il y a de la place pour les fichiers temporaires.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>La description de cette imprimante n’accepte aucune page de la longueur choisie. La page garde une longueur de %1 mm et la longueur est laissée au pilote.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>Une longueur aussi proche de celle du ruban est remplacée par celle-ci par le système d’impression : %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>Les marges ne laissent rien du ruban à imprimer. Allongez le ruban ou réduisez la marge.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Aucune page du document n’est choisie. Modifiez l’étendue de pages.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» ne propose pas %2=%3, que l’imprimante possède&#xa0;: la tâche porte %4=%5.</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>Le document %1 a disparu : rien n’a été imprimé. Remettez-le en place ou ouvrez-en un autre.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>Le document %1 a changé depuis son ouverture : rien n’a été imprimé. Ouvrez-le de nouveau.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>il est plus grand que toute description d’imprimante</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Le fichier PPD %1 ne peut pas être conservé dans un fichier temporaire (%2) : libérez-y de la place.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>L’impression a été arrêtée.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>Les filtres de %1 n’en finissaient pas avec le document %2 et ont été arrêtés.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>La description d’imprimante %1 est jugée digne de confiance et exécute ses propres programmes ou commandes : %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>un fichier de ce nom existe déjà</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>la sortie standard</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>l’entrée standard</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>c’est un tube ou un périphérique</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Le PPD de la file %1 ne peut pas être conservé dans un fichier temporaire (%2) : libérez-y de la place.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>Les données d’impression sont allées sur la sortie standard (%1 octets).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>La page %1 du document %2 n’a pas de taille. Omettez-la ou recréez-la.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>Une longueur aussi proche de celle d’un autre papier est remplacée par celle-ci par le système d’impression : %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>plus de %1 Mio de mémoire seraient nécessaires</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Le fichier PPD %1 est tronqué&#xa0;: sa fin manque. Copiez-le à nouveau.</translation>
    </message>
    <message>
        <source>The chosen pages cannot be put together (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Les pages choisies ne peuvent pas être réunies (%1) : vérifiez que le document est entier et qu’il y a de la place pour des fichiers temporaires.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>an option and its choice</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; becomes &quot;%2&quot;.</source>
        <translation>« %1 » devient « %2 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; changes from &quot;%2&quot; to &quot;%3&quot;.</source>
        <translation>« %1 » passe de « %2 » à « %3 ».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with &quot;%2&quot;.</source>
        <translation>« %1 » ne va pas avec « %2 ».</translation>
    </message>
    <message>
        <source>%1 do not go together.</source>
        <translation>%1 ne vont pas ensemble.</translation>
    </message>
    <message>
        <source>Width</source>
        <comment>of a page</comment>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <comment>of a page</comment>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>The sizes are not remembered, because %1 cannot be written.</source>
        <translation>Les formats ne sont pas mémorisés, car %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Leave out single braces and characters that cannot be seen.</source>
        <translation>N’utilisez ni accolade isolée ni caractère invisible.</translation>
    </message>
    <message>
        <source>Give %1 to %2 characters.</source>
        <translation>Indiquez de %1 à %2 caractères.</translation>
    </message>
    <message>
        <source>Give %1 characters or more.</source>
        <translation>Indiquez au moins %1 caractères.</translation>
    </message>
    <message>
        <source>Give %1 to %2 digits.</source>
        <translation>Indiquez de %1 à %2 chiffres.</translation>
    </message>
    <message>
        <source>Give %1 digits or more.</source>
        <translation>Indiquez au moins %1 chiffres.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 in.</source>
        <translation>Indiquez une longueur de %1 à %2 pouces.</translation>
    </message>
    <message>
        <source>Give a length from %1 to %2 mm.</source>
        <translation>Indiquez une longueur de %1 à %2 mm.</translation>
    </message>
    <message>
        <source>Give a whole number from %1 to %2.</source>
        <translation>Indiquez un nombre entier de %1 à %2.</translation>
    </message>
    <message>
        <source>Give a number from %1 to %2.</source>
        <translation>Indiquez un nombre de %1 à %2.</translation>
    </message>
    <message>
        <source>The value of option %1 is in braces, which the print server drops: give %1 a plain value.</source>
        <translation>La valeur de l’option %1 est entre accolades, que le serveur supprime : donnez à %1 une valeur simple.</translation>
    </message>
    <message>
        <source>number-up=%1 is none of the numbers that the print system knows: each page has a sheet of its own.</source>
        <translation>number-up=%1 n’est pas un nombre connu du système d’impression : chaque page a sa propre feuille.</translation>
    </message>
    <message>
        <source>Option %1 changes nothing on tape: say how pages lie on it by print-scaling, orientation-requested, position and number-up.</source>
        <translation>L’option %1 ne change rien sur ruban : indiquez la mise en page par print-scaling, orientation-requested, position et number-up.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>the print server does not say why</source>
        <translation>le serveur d’impression ne dit pas pourquoi</translation>
    </message>
    <message>
        <source>The print server tells no more of job %1.</source>
        <translation>Le serveur d’impression ne dit plus rien de la tâche %1.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2.</source>
        <translation>La tâche %1 a échoué : %2.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled.</source>
        <translation>La tâche %1 a été annulée.</translation>
    </message>
    <message>
        <source>Job %1 is printed.</source>
        <translation>La tâche %1 est imprimée.</translation>
    </message>
    <message>
        <source>Job %1 is held: it waits until it is released.</source>
        <translation>La tâche %1 est retenue : elle attend d’être libérée.</translation>
    </message>
    <message>
        <source>Job %1 waits: %2.</source>
        <translation>La tâche %1 attend : %2.</translation>
    </message>
    <message>
        <source>Job %1 is being printed.</source>
        <translation>La tâche %1 est en cours d’impression.</translation>
    </message>
    <message>
        <source>Job %1 waits behind others: %2.</source>
        <translation>La tâche %1 attend derrière d’autres : %2.</translation>
    </message>
    <message>
        <source>Job %1 waits for the printer.</source>
        <translation>La tâche %1 attend l’imprimante.</translation>
    </message>
    <message>
        <source>What became of job %1 is not known.</source>
        <translation>On ne sait pas ce qu’est devenue la tâche %1.</translation>
    </message>
    <message>
        <source>Job %1 cannot be cancelled (%2).</source>
        <translation>La tâche %1 ne peut pas être annulée (%2).</translation>
    </message>
    <message>
        <source>The settings cannot be kept for the next time: %1 cannot be written.</source>
        <translation>Les réglages ne peuvent pas être gardés pour la prochaine fois : %1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be read (%2).</source>
        <translation>Le fichier de vos préréglages, %1, ne peut pas être lu (%2).</translation>
    </message>
    <message>
        <source>These are more options than CUPS keeps in a preset.</source>
        <translation>C’est plus d’options que CUPS n’en garde dans un préréglage.</translation>
    </message>
    <message>
        <source>An option has a value that CUPS cannot keep in a preset.</source>
        <translation>Une option a une valeur que CUPS ne peut pas garder dans un préréglage.</translation>
    </message>
    <message>
        <source>The file with your presets, %1, cannot be written (%2): it stays as it was.</source>
        <translation>Le fichier de vos préréglages, %1, ne peut pas être écrit (%2) : il reste inchangé.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a text and the keyword that tells it from another of the same wording</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>General</source>
        <comment>options that the printer&apos;s description puts in no group</comment>
        <translation>Général</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a group of options and a group within it</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The PPD file %1 is too large for one: name a PPD file.</source>
        <translation>Le fichier %1 est trop grand pour un PPD : indiquez un fichier PPD.</translation>
    </message>
    <message>
        <source>%1 has no preset %2 of yours.</source>
        <translation>%1 n’a pas de préréglage %2 à vous.</translation>
    </message>
    <message>
        <source>There is a preset %1 already.</source>
        <translation>Il existe déjà un préréglage %1.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage doit avoir un nom.</translation>
    </message>
    <message>
        <source>CUPS cannot keep a preset whose name has blanks, slashes, quotes or one of # &lt; &gt;.</source>
        <translation>CUPS ne peut pas garder un préréglage dont le nom contient des espaces, des barres obliques, des guillemets ou l’un de # &lt; &gt;.</translation>
    </message>
    <message>
        <source>This name is longer than CUPS can keep.</source>
        <translation>Ce nom est plus long que CUPS ne peut le garder.</translation>
    </message>
    <message>
        <source>The preset&apos;s option %1=%2 is none of this printer&apos;s any more. The preset keeps it until you save over it.</source>
        <translation>Cette imprimante n’a plus l’option %1=%2 du préréglage. Le préréglage la garde jusqu’à ce que vous le remplaciez.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>state of a printer</comment>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>takes no jobs</source>
        <translation>n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a state and its reasons</comment>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs.</source>
        <translation>L’imprimante %1 n’accepte pas de tâches.</translation>
    </message>
    <message>
        <source>The printer %1 takes no jobs: %2.</source>
        <translation>L’imprimante %1 n’accepte pas de tâches : %2.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped. A job waits until it goes on.</source>
        <translation>L’imprimante %1 est arrêtée. Une tâche attend qu’elle reprenne.</translation>
    </message>
    <message>
        <source>The printer %1 is stopped: %2. A job waits until it goes on.</source>
        <translation>L’imprimante %1 est arrêtée : %2. Une tâche attend qu’elle reprenne.</translation>
    </message>
    <message>
        <source>The printer %1 says: %2.</source>
        <translation>L’imprimante %1 signale : %2.</translation>
    </message>
    <message>
        <source>The queue %1 has no printer description by which bytes for the printer could be made: save a PDF instead.</source>
        <translation>La file %1 n’a pas de description d’imprimante pour produire des données : enregistrez plutôt un PDF.</translation>
    </message>
    <message>
        <source>The PDF is in %1 (%2 bytes).</source>
        <translation>Le PDF est dans %1 (%2 octets).</translation>
    </message>
    <message>
        <source>The queue %1 takes no jobs: see lpstat -a %1.</source>
        <translation>La file %1 n’accepte pas de tâches : voyez lpstat -a %1.</translation>
    </message>
    <message>
        <source>%1=%2 is no size: write it as Custom.WIDTHxLENGTHmm, or with in, cm or pt.</source>
        <translation>%1=%2 n’est pas un format : écrivez Custom.LARGEURxLONGUEURmm, ou avec in, cm ou pt.</translation>
    </message>
    <message>
        <source>%1=%2: the printer takes no sizes other than those that it has.</source>
        <translation>%1=%2 : l’imprimante n’accepte que les formats qu’elle a.</translation>
    </message>
    <message>
        <source>%1=%2 is smaller or larger than the printer can take.</source>
        <translation>%1=%2 est plus petit ou plus grand que ce que l’imprimante accepte.</translation>
    </message>
    <message>
        <source>%1=%2: %3</source>
        <translation>%1=%2 : %3</translation>
    </message>
    <message>
        <source>media=%1 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>media=%1 ne figure pas parmi les choix du fichier PPD de l’imprimante.</translation>
    </message>
    <message>
        <source>%1=%2 is no value that CUPS knows for %1.</source>
        <translation>%1=%2 : CUPS ne connaît pas cette valeur pour %1.</translation>
    </message>
    <message>
        <source>The print server %1 wants a user&apos;s name and password, and was given none that it accepts.</source>
        <translation>Le serveur d’impression %1 demande un nom d’utilisateur et un mot de passe, et n’en a reçu aucun qu’il accepte.</translation>
    </message>
    <message>
        <source>The print server %1 has stopped answering: try again when it is back.</source>
        <translation>Le serveur d’impression %1 ne répond plus : réessayez quand il sera revenu.</translation>
    </message>
    <message>
        <source>out of tape</source>
        <translation>plus de ruban</translation>
    </message>
    <message>
        <source>out of paper</source>
        <translation>plus de papier</translation>
    </message>
    <message>
        <source>other tape is needed</source>
        <translation>un autre ruban est nécessaire</translation>
    </message>
    <message>
        <source>other paper is needed</source>
        <translation>un autre papier est nécessaire</translation>
    </message>
    <message>
        <source>little tape is left</source>
        <translation>il reste peu de ruban</translation>
    </message>
    <message>
        <source>little paper is left</source>
        <translation>il reste peu de papier</translation>
    </message>
    <message>
        <source>the tape is jammed</source>
        <translation>le ruban est coincé</translation>
    </message>
    <message>
        <source>the paper is jammed</source>
        <translation>bourrage papier</translation>
    </message>
    <message>
        <source>the cover is open</source>
        <translation>le capot est ouvert</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>une porte est ouverte</translation>
    </message>
    <message>
        <source>no cassette is in it</source>
        <translation>aucune cassette n’est en place</translation>
    </message>
    <message>
        <source>the paper tray is missing</source>
        <translation>le bac à papier manque</translation>
    </message>
    <message>
        <source>the output tray is full</source>
        <translation>le bac de sortie est plein</translation>
    </message>
    <message>
        <source>little ink is left</source>
        <translation>il reste peu d’encre</translation>
    </message>
    <message>
        <source>out of ink</source>
        <translation>plus d’encre</translation>
    </message>
    <message>
        <source>little toner is left</source>
        <translation>il reste peu de toner</translation>
    </message>
    <message>
        <source>out of toner</source>
        <translation>plus de toner</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>paused after this job</source>
        <translation>en pause après cette tâche</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>les nouvelles tâches sont retenues</translation>
    </message>
    <message>
        <source>switched off or not connected</source>
        <translation>éteinte ou non connectée</translation>
    </message>
    <message>
        <source>it does not answer</source>
        <translation>elle ne répond pas</translation>
    </message>
    <message>
        <source>being connected</source>
        <translation>connexion en cours</translation>
    </message>
    <message>
        <source>the print server&apos;s disk is full</source>
        <translation>le disque du serveur d’impression est plein</translation>
    </message>
    <message>
        <source>a part of its driver is missing</source>
        <translation>une partie de son pilote manque</translation>
    </message>
    <message>
        <source>the print server does not trust its driver</source>
        <translation>le serveur d’impression ne fait pas confiance à son pilote</translation>
    </message>
    <message>
        <source>in</source>
        <comment>the sign of the inch</comment>
        <translation>po</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <comment>a length in feet</comment>
        <translation>%1 pi</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): choose another printer.</source>
        <translation>La file d’attente %1 est injoignable (%2) : choisissez une autre imprimante.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2).</source>
        <translation>La file d’attente %1 n’a pas accepté la tâche (%2).</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another.</source>
        <translation>Le fichier %1 ne peut pas être écrit (%2) : indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another.</source>
        <translation>Le fichier %1 n’est remplacé qu’en entier, et rien ne peut être écrit à côté (%2) : indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another.</source>
        <translation>La sortie (%1) est le même fichier que %2, qui est seulement lu : indiquez-en une autre.</translation>
    </message>
    <message>
        <source>The part of this program that draws pages cannot be loaded (%1): install it again.</source>
        <translation>La partie de ce programme qui dessine les pages ne peut pas être chargée (%1) : réinstallez-le.</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run.</source>
        <translation>La description d’imprimante %1 apporte ses propres programmes ou commandes, dont personne ne répond : %2. Rien n’a été exécuté.</translation>
    </message>
    <message>
        <source>There is no default printer: choose one.</source>
        <translation>Il n’y a pas d’imprimante par défaut : choisissez-en une.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: choose another printer.</source>
        <translation>Le serveur d’impression ne connaît pas la file d’attente %1 : choisissez une autre imprimante.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer. It is asked again until it does.</source>
        <translation>Le serveur d’impression %1 ne répond pas. Il est interrogé à nouveau jusqu’à ce qu’il réponde.</translation>
    </message>
    <message>
        <source>%1 calls itself without end, and was not asked again.</source>
        <translation>%1 s’appelle lui-même sans fin et n’a plus été interrogé.</translation>
    </message>
    <message>
        <source>%1 kept the window waiting for %2 s.</source>
        <translation>%1 a fait attendre la fenêtre %2 s.</translation>
    </message>
    <message>
        <source>%1 failed.</source>
        <translation>%1 a échoué.</translation>
    </message>
    <message>
        <source>%1 failed: %2.</source>
        <translation>%1 a échoué : %2.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): see that the folder for temporary files can be written to and has room.</source>
        <translation>Un fichier temporaire ne peut pas être écrit (%1) : vérifiez que le dossier des fichiers temporaires est accessible en écriture et qu’il y reste de la place.</translation>
    </message>
    <message>
        <source>%1 is handed to the print server as it is, which may know what to make of it.</source>
        <translation>%1 est remis tel quel au serveur d’impression, qui saura peut-être quoi en faire.</translation>
    </message>
    <message>
        <source>The document %1 is empty: name a file with something to print.</source>
        <translation>Le document %1 est vide : indiquez un fichier qui contient quelque chose à imprimer.</translation>
    </message>
    <message>
        <source>Printer Commands</source>
        <comment>options that are sent before the job, in the printer&apos;s own language</comment>
        <translation>Commandes de l’imprimante</translation>
    </message>
    <message>
        <source>the printer is at work</source>
        <translation>l’imprimante travaille</translation>
    </message>
    <message>
        <source>what reads it has broken off</source>
        <translation>le programme qui le lit s’est interrompu</translation>
    </message>
    <message>
        <source>Page %1 would come out %2 mm wide and %3 mm long, which nobody can read: choose a longer tape, a smaller margin or fewer pages on a label.</source>
        <translation>La page %1 ferait %2 mm de large et %3 mm de long, ce que personne ne peut lire. Choisissez un ruban plus long, une marge plus petite ou moins de pages par étiquette.</translation>
    </message>
    <message>
        <source>The document %1 is of a kind that cannot be laid out on tape: open it in a program that shows it, save it from there as a PDF or PNG, and print that.</source>
        <translation>Le document %1 est d’un type qui ne peut pas être mis en page sur un ruban. Ouvrez-le dans un programme qui l’affiche, enregistrez-le au format PDF ou PNG, puis imprimez ce fichier.</translation>
    </message>
    <message>
        <source>Job %1 has failed: %2. It stays in the queue: cancel it or start it again in the desktop&apos;s printer settings.</source>
        <translation>La tâche %1 a échoué : %2. Elle reste dans la file : annulez-la ou relancez-la dans les paramètres d’impression du bureau.</translation>
    </message>
    <message>
        <source>Job %2-%1 may be left half sent on the server: cancel it in the desktop&apos;s printer settings.</source>
        <translation>La tâche %2-%1 est peut-être restée à moitié envoyée sur le serveur : annulez-la dans les paramètres d’impression du bureau.</translation>
    </message>
    <message>
        <source>The printer has no option %1: is %2 meant?</source>
        <translation>L’imprimante n’a pas d’option %1. S’agit-il de %2 ?</translation>
    </message>
    <message>
        <source>“%1” is no list of pages: write them as 1-3,7.</source>
        <translation>« %1 » n’est pas une liste de pages : écrivez 1-3,7.</translation>
    </message>
    <message>
        <source>There is no page %1: pages are counted from 1.</source>
        <translation>Il n’y a pas de page %1 : les pages sont comptées à partir de 1.</translation>
    </message>
    <message>
        <source>The pages %1-%2 run backwards: write %2-%1.</source>
        <translation>Les pages %1-%2 vont à rebours : écrivez %2-%1.</translation>
    </message>
    <message>
        <source>The print server makes %1 copies of a job at most, and not %2: ask for fewer.</source>
        <translation>Le serveur d’impression fait au plus %1 copies d’une tâche, et non %2. Demandez-en moins.</translation>
    </message>
    <message>
        <source>The print server does not put %1 pages on a sheet (number-up): choose one of %2.</source>
        <translation>Le serveur d’impression ne met pas %1 pages sur une feuille (number-up). Choisissez l’un de ces nombres : %2.</translation>
    </message>
</context>
<context>
    <name>tapeprint::portal::PortalTexts</name>
    <message>
        <source>The program prints a part: its current page, or what is selected.</source>
        <translation>Le programme imprime une partie : sa page actuelle ou la sélection.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>title and program</comment>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>The program&apos;s document cannot be read (%1): print it once more, or save it as a PDF and print that.</source>
        <translation>Le document du programme est illisible (%1) : imprimez-le à nouveau, ou enregistrez-le en PDF et imprimez celui-ci.</translation>
    </message>
</context>
</TS>
